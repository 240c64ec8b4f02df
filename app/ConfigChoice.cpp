#include "app/ConfigChoice.h"

#include "app/Texts.h"
#include "app/operations/CheckConfigFile.h"

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
    CheckConfigFile check(choice.path);
    const Outcome checked = check.run({});
    if (checked.isFailure()) {
        return checked;
    }
    return ConfigText{choice.label(), *check.bytes()};
}
