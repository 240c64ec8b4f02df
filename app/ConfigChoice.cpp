#include "app/ConfigChoice.h"

#include "app/MachineConfigCheck.h"
#include "app/Texts.h"

std::variant<ConfigText, Outcome> readChosenConfig(const ResourceBundle& resources,
                                                   const ConfigChoice& choice) {
    if (choice.product) {
        const auto bytes = resources.readConfig(choice.product->configFile);
        if (!bytes) {
            return Outcome::make(Outcome::Kind::missingResource,
                                 Texts::configMissing(choice.product->configFile));
        }
        return ConfigText{choice.label(), *bytes};
    }
    auto checked =
        choice.bytes ? checkConfigBytes(choice.path, *choice.bytes) : checkConfigFile(choice.path);
    if (auto* refused = std::get_if<Outcome>(&checked)) {
        return *refused;
    }
    return ConfigText{choice.label(), std::get<QByteArray>(std::move(checked))};
}
