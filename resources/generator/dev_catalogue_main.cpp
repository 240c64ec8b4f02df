// Signs a firmware catalogue of development images for the demo, with the build
// tree's own development key (made on first use), and writes that key's public half
// as catalogue.pub into the development resource set:
//   tfu_dev_catalogue <private key file> <development resources folder> <catalogue folder>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <sstream>
#include <string>

#include "Bytes.h"
#include "DevImages.h"
#include "SigningKey.h"

namespace {

namespace fs = std::filesystem;

struct Release {
    const char* version;
    const char* channel;
    const char* notes;
};

constexpr Release kReleases[] = {
    {"2.11.0-devset", "stable", "Development image, not firmware: a newer stable release."},
    {"2.12.0-beta.1-devset", "beta", "Development image, not firmware: a beta release."},
    {"2.9.4-devset", "stable", "Development image, not firmware: an older release."},
};
constexpr const char* kRevoked = "2.10.9-devset";

std::optional<std::string> readFile(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        return std::nullopt;
    }
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

bool writeFile(const fs::path& path, std::string_view bytes) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return static_cast<bool>(out);
}

// The build tree's key, kept from one build to the next so that what a demo
// accepted stays valid; only its owner may read it.
devset::SigningKey developmentKey(const fs::path& path) {
    if (const auto pem = readFile(path)) {
        if (auto key = devset::SigningKey::fromPrivatePem(*pem)) {
            return *key;
        }
    }
    auto key = devset::SigningKey::generate();
    writeFile(path, "");
    fs::permissions(path, fs::perms::owner_read | fs::perms::owner_write);
    writeFile(path, key.privatePem());
    return key;
}

std::string hex(const devset::Bytes& bytes) {
    static constexpr char kDigits[] = "0123456789abcdef";
    std::string out;
    for (const uint8_t byte : bytes) {
        out += kDigits[byte >> 4];
        out += kDigits[byte & 0xF];
    }
    return out;
}

std::string utcNow(const char* format) {
    const std::time_t now = std::time(nullptr);
    std::tm utc{};
    gmtime_r(&now, &utc);
    char text[32];
    std::strftime(text, sizeof text, format, &utc);
    return text;
}

// Writes each release's image into `folder`/images and returns their entries.
std::optional<std::string> writeReleases(const fs::path& folder) {
    fs::create_directories(folder / "images");
    std::ostringstream entries;
    const char* separator = "";
    for (const Release& release : kReleases) {
        const devset::Bytes image = devset::application(release.version);
        const std::string name = std::string("images/firmware-") + release.version + ".bin";
        if (!writeFile(folder / name, std::string_view(reinterpret_cast<const char*>(image.data()),
                                                       image.size()))) {
            return std::nullopt;
        }
        entries << separator << "\n    {\"version\": \"" << release.version << "\", \"channel\": \""
                << release.channel << "\", \"date\": \"" << utcNow("%Y-%m-%d")
                << "\", \"notes\": \"" << release.notes << "\",\n     \"image\": {\"url\": \""
                << name << "\", \"size\": " << image.size() << ", \"sha256\": \""
                << hex(devset::sha256(image)) << "\"}}";
        separator = ",";
    }
    return entries.str();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 4) {
        std::fprintf(stderr, "usage: %s <private key file> <resources folder> <catalogue folder>\n",
                     argv[0]);
        return 2;
    }
    const fs::path resources(argv[2]);
    const fs::path folder(argv[3]);
    const devset::SigningKey key = developmentKey(argv[1]);
    fs::create_directories(resources);
    const auto entries = writeReleases(folder);
    const std::string catalogue = std::string("{\n  \"schema\": 1,\n  \"published\": \"") +
                                  utcNow("%Y-%m-%dT%H:%M:%SZ") + "\",\n  \"revoked\": [\"" +
                                  kRevoked + "\"],\n  \"firmware\": [" + entries.value_or("") +
                                  "\n  ]\n}\n";
    const bool written = entries &&
                         writeFile(resources / "catalogue.pub",
                                   std::string(devset::kKeyMarker) + "\n" + key.publicPem()) &&
                         writeFile(folder / "catalogue.json", catalogue) &&
                         writeFile(folder / "catalogue.json.sig", key.sign(catalogue));
    if (!written) {
        std::fprintf(stderr, "could not write the development catalogue into %s\n", argv[3]);
        return 1;
    }
    return 0;
}
