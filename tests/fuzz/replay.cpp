// SPDX-License-Identifier: MIT
// Runs a fuzz target with kept inputs where there is no fuzzer: the files and folders that the arguments name.
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <memory>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

static bool replay(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    // Before the input, for who ends within it.
    std::printf("%s\n", qPrintable(path));
    std::fflush(stdout);
    // A copy of exactly that size, behind which a sanitizer watches.
    const QByteArray content = file.readAll();
    const std::unique_ptr<std::uint8_t[]> bytes(new std::uint8_t[std::size_t(content.size())]);
    std::copy(content.begin(), content.end(), bytes.get());
    LLVMFuzzerTestOneInput(bytes.get(), std::size_t(content.size()));
    return true;
}

int main(int argc, char **argv)
{
    int count = 0;
    for (int i = 1; i < argc; ++i) {
        const QString path = QString::fromLocal8Bit(argv[i]);
        if (QFileInfo(path).isDir()) {
            for (QDirIterator files(path, QDir::Files); files.hasNext();)
                count += replay(files.next());
        } else {
            count += replay(path);
        }
    }
    std::printf("%d inputs\n", count);
    return count > 0 ? 0 : 1;
}
