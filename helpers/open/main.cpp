// SPDX-License-Identifier: MIT
#include "open/launch.h"
#include "open/reveal.h"

#include <iostream>
#include <string_view>
#include <sysexits.h>
#include <vector>

namespace {

using namespace tarnwick;

std::function<Failure()> parseRequest(const std::vector<std::string_view>& arguments)
{
    for (const std::string_view argument : arguments) {
        if (argument.empty())
            return {};
    }
    if (arguments.size() == 3 && arguments[0] == "-a")
        return [=] { return openInApplication(arguments[1].data(), arguments[2].data()); };
    if (arguments.size() == 2 && arguments[0] == "--reveal")
        return [=] { return revealInFileManager(arguments[1].data()); };
    return {};
}

} // namespace

int main(int argc, char* argv[])
{
    const auto request = parseRequest({argv + 1, argv + argc});
    if (!request) {
        std::cerr << "usage: open -a APPLICATION DIRECTORY\n       open --reveal PATH\n";
        return EX_USAGE;
    }
    // The caller blocks its user interface while this program runs.
    if (const auto failure = runDetached(request, std::chrono::seconds(1))) {
        std::cerr << "open: " << failure->constData() << '\n';
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
