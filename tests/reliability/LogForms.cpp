#include "Campaign.h"

#include <regex>

namespace reliability {
namespace {

const std::string kName =
    "(SYNC|READ_REG|GET_SECURITY_INFO|MEM_BEGIN|MEM_DATA|MEM_END|SPI_ATTACH|FLASH_BEGIN|"
    "FLASH_DATA|FLASH_END|SPI_FLASH_MD5|READ_FLASH|CMD_0x[0-9A-F]{2})";
const std::string kHex8 = "0x[0-9a-f]{8}";

// The exchange failures of the loader: one line per failed command.
const std::string kExchange = "(SEND FAIL|NO RESPONSE): " + kName + "|PARSE FAIL: " + kName +
                              " payload_size=\\d+|CMD MISMATCH: sent " + kName + " got " + kName +
                              "|ERROR: " + kName + " status=\\d+ error=\\d+";

const std::vector<std::string>& forms() {
    static const std::vector<std::string> all = {
        kExchange,
        "Entering bootloader\\.\\.\\.",
        "Retrying bootloader entry \\(attempt [23]\\)\\.\\.\\.",
        "Syncing\\.\\.\\.",
        "Sync (OK|failed after all retries)",
        "Chip ID: 0x[0-9A-F]+",
        "Wrong chip! Expected ESP32-S3 \\(0x0009\\)",
        "Chip: ESP32-S3",
        "Security fuses: " + kHex8,
        "Security check OK - no secure boot or flash encryption",
        "WARNING: Unexpected security fuse value! Secure boot or flash encryption may be "
        "enabled\\.",
        "ABORTED: Device has secure boot or flash encryption enabled\\. Flashing plaintext "
        "firmware would brick it\\.",
        "Uploading flash stub \\(\\d+ bytes\\)\\.\\.\\.",
        "Stub header parse failed \\(size=\\d+\\)",
        "Stub: text=\\d+ @ " + kHex8 + " data=\\d+ @ " + kHex8 + " entry=" + kHex8,
        "Stub (upload failed|running)",
        "Attaching SPI flash\\.\\.\\.",
        "SPI_ATTACH (\\(default pins\\)|OK|FAILED)",
        "Erasing entire flash\\.\\.\\.",
        "ERASE_FLASH (\\(full chip erase\\)|OK|FAILED)",
        "Flash (erase failed|erased)",
        "Flash plan: [1-4] entries \\((FULL|app only)\\)",
        "  0x[0-9A-F]{5,8}: \\d+ bytes",
        "FLASH_BEGIN addr=" + kHex8 + " size=\\d+ blocks=\\d+ blockSize=16384",
        "FLASH_BEGIN (FAILED|OK \\(erase complete\\))",
        "FLASH_END (OK|FAILED)",
        "VERIFY addr=" + kHex8 + " size=\\d+",
        "VERIFY: MD5 command failed",
        "VERIFY: MD5 response too short \\(\\d+ bytes\\)",
        "VERIFY (local|flash)_md5=[0-9a-f]{32}",
        "VERIFY (OK|MISMATCH)",
        "Verifying firmware version\\.\\.\\.",
        "Device running firmware .*",
        "WARNING: Expected firmware .+ but device reports .*",
        "Could not confirm firmware version after update\\.",
    };
    return all;
}

const std::regex& anyForm() {
    static const std::regex pattern = [] {
        std::string alternation;
        for (const auto& form : forms()) {
            alternation += (alternation.empty() ? "(" : "|(") + form + ")";
        }
        return std::regex(alternation, std::regex::optimize);
    }();
    return pattern;
}

}  // namespace

bool isDefinedLogLine(const std::string& line) {
    return std::regex_match(line, anyForm());
}

bool explainsFailure(const std::vector<std::string>& lines, unsigned code) {
    if (lines.empty()) {
        return false;
    }
    const std::string& last = lines.back();
    switch (code) {
        case 3:
            return last == "Sync failed after all retries";
        case 4:
            return last.starts_with("Wrong chip!") || last.starts_with("ABORTED:");
        case 5:
            return last == "Stub upload failed";
        case 6:
            return last == "Flash erase failed" || last == "FLASH_BEGIN FAILED" ||
                   (std::regex_match(last, std::regex(kExchange)) &&
                    last.find("FLASH_DATA") != last.npos);
        case 7:
            return last == "VERIFY MISMATCH" || last == "VERIFY: MD5 command failed" ||
                   last.starts_with("VERIFY: MD5 response too short (");
        default:
            return false;
    }
}

}  // namespace reliability
