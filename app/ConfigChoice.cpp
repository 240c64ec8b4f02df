#include "app/ConfigChoice.h"

#include "app/ConfigUploadJob.h"

ChosenConfig readChosenConfig(const ResourceBundle& resources, const ConfigChoice& choice) {
    if (choice.product) {
        const auto bytes = resources.readConfig(choice.product->configFile);
        if (!bytes) {
            return {std::nullopt, QStringLiteral("Config file not found in bundle: ") +
                                      choice.product->configFile};
        }
        return {ConfigText{choice.label(), *bytes}, {}};
    }
    const ConfigFile file = readConfigFile(choice.path);
    if (!file.bytes) {
        return {std::nullopt, file.refusal};
    }
    return {ConfigText{choice.label(), *file.bytes}, {}};
}
