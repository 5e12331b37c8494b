// SPDX-License-Identifier: MIT
#include <QFile>

#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const uchar* data, std::size_t size);

/// Gives the target the files that are named, as libFuzzer does.
int main(int argc, char* argv[])
{
    for (int i = 1; i < argc; ++i) {
        std::puts(argv[i]);
        QFile file(QFile::decodeName(argv[i]));
        if (!file.open(QIODevice::ReadOnly))
            return 1;
        LLVMFuzzerTestOneInput(file.map(0, file.size()), static_cast<std::size_t>(file.size()));
    }
    std::printf("Totals: %d passed, 0 failed, 0 skipped\n", argc - 1);
}
