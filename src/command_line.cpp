// SPDX-License-Identifier: MIT
#include "command_line.h"

#include <algorithm>
#include <cstdio>
#include <string_view>

namespace tarnwick {

namespace {

constexpr int unknownOption = 64; // EX_USAGE of sysexits.h

constexpr char help[] = "Usage: tarnwick\n"
                        "Shows the state of your git working copies in the status bar.\n"
                        "\n"
                        "  --help     print this and end\n"
                        "  --version  print the version and end\n";

} // namespace

std::optional<int> answerCommandLine(int argc, const char* const* argv)
{
    const auto option = std::find_if(argv + 1, argv + argc, [](std::string_view argument) {
        return argument.substr(0, 2) == "--";
    });
    if (option == argv + argc)
        return std::nullopt;
    const std::string_view name = *option;
    if (name == "--help")
        return std::fputs(help, stdout) < 0;
    if (name == "--version")
        return std::puts("Tarnwick " TARNWICK_VERSION) < 0;
    std::fprintf(stderr, "tarnwick: unknown option %s; see tarnwick --help\n", *option);
    return unknownOption;
}

} // namespace tarnwick
