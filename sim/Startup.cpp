#include "sim/Startup.h"

#include <utility>

namespace sim {

namespace {

constexpr std::pair<Startup, std::string_view> kNames[] = {
    {Startup::Healthy, "healthy"},   {Startup::BootLoop, "boot-loop"},
    {Startup::Panic, "panic"},       {Startup::NoApplication, "no-app"},
    {Startup::Brownout, "brownout"}, {Startup::ConfigError, "config-error"},
    {Startup::Silent, "silent"},     {Startup::OtherVersion, "other-version"},
};

}  // namespace

std::string_view startupName(Startup startup) {
    for (const auto& [value, name] : kNames) {
        if (value == startup) {
            return name;
        }
    }
    return {};
}

std::optional<Startup> parseStartup(std::string_view name) {
    for (const auto& [value, text] : kNames) {
        if (text == name) {
            return value;
        }
    }
    return std::nullopt;
}

}  // namespace sim
