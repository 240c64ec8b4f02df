// Writes the development resource set's images into the folder given as the
// only argument.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include "DevImages.h"

namespace {

bool writeFile(const std::filesystem::path& path, const devset::Bytes& bytes) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(reinterpret_cast<const char*>(bytes.data()),
              static_cast<std::streamsize>(bytes.size()));
    return static_cast<bool>(out);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s <output folder>\n", argv[0]);
        return 2;
    }
    const std::filesystem::path folder(argv[1]);
    std::filesystem::create_directories(folder);
    const bool written = writeFile(folder / "partitions.bin", devset::partitionTable()) &&
                         writeFile(folder / "boot_app0.bin", devset::bootApp()) &&
                         writeFile(folder / "bootloader.bin", devset::bootloader()) &&
                         writeFile(folder / "firmware.bin", devset::application()) &&
                         writeFile(folder / "esp32s3_stub.bin", devset::stub());
    if (!written) {
        std::fprintf(stderr, "could not write the development images into %s\n", argv[1]);
        return 1;
    }
    return 0;
}
