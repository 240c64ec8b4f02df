#include <algorithm>

#include "app/BuildConfig.h"
#include "app/ConfigUploadJob.h"
#include "cli/Commands.h"

namespace {

const QString kUploaded = QStringLiteral("Upload successful; restarting machine.");

double uploadedShare(float fraction) {
    return static_cast<double>(fraction);
}

std::vector<std::string> productNames() {
    std::vector<std::string> names;
    for (const ProductConfig& product : BuildConfig::products()) {
        names.push_back(product.name.toStdString());
        names.push_back(product.configFile.toStdString());
    }
    return names;
}

std::string productList() {
    QString list = QStringLiteral("Products:\n");
    for (const ProductConfig& product : BuildConfig::products()) {
        list += QStringLiteral("  %1 (%2)\n").arg(product.name, product.configFile);
    }
    return (list + QLatin1Char('\n')).toStdString();
}

ProductConfig productNamed(const std::string& name) {
    const QString wanted = QString::fromStdString(name);
    const auto& products = BuildConfig::products();
    return *std::find_if(products.begin(), products.end(), [&](const ProductConfig& product) {
        return product.name == wanted || product.configFile == wanted;
    });
}

class UploadConfigCommand : public Command {
  public:
    CLI::App* define(CLI::App& parent) override {
        CLI::App* command = parent.add_subcommand(
            "upload-config",
            "Uploads a machine configuration, as the updater window's Config menu does. It "
            "takes a product's configuration from the resources, or a file from disk, which is "
            "checked first (UTF-8, YAML, a mapping of settings, at most 1 MiB); the machine "
            "then restarts.");
        CLI::Option_group* source = command->add_option_group("source", "What to upload");
        source
            ->add_option("--product", product_,
                         "Product, by name (\"Corvane Halcot\") or configuration file "
                         "(\"Halcot.yaml\")")
            ->check(CLI::IsMember(productNames()).description(""))
            ->type_name("NAME");
        source->add_option("FILE", file_, "Configuration file (.yaml or .yml)")->type_name("");
        source->require_option(1);
        command->footer(productList());
        return command;
    }

    QStringList exitCodes() const override {
        return {QStringLiteral("0  uploaded; the machine restarts"),
                QStringLiteral("1  no plotter is connected"),
                QStringLiteral("2  the port could not be opened"),
                QStringLiteral("8  the upload failed"),
                QStringLiteral("11 the configuration was refused before anything was sent"),
                QStringLiteral("12 the product's configuration is missing from the resources")};
    }

    Ports ports() const override { return Ports::several; }

    event::Result run(const CommandContext& context, const Feed& feed) const override {
        const JobSink sink = feed.jobSink(&uploadedShare);
        if (!product_.empty()) {
            // The development set's configurations describe no real machine.
            if (context.developmentSet && !context.simulated) {
                return {ExitCode::refused,
                        QStringLiteral("The development set's configurations are only for "
                                       "simulated plotters"),
                        true};
            }
            const ConfigUploadJob job(context.portPath, context.resources, productNamed(product_));
            return resultOf(job.run(sink), kUploaded);
        }
        const ConfigFile config = readConfigFile(QString::fromStdString(file_));
        if (!config.bytes) {
            return {ExitCode::refused, config.refusal, true};
        }
        feed.log(config.announcement);
        const ConfigUploadJob job(context.portPath, *config.bytes);
        return resultOf(job.run(sink), kUploaded);
    }

  private:
    std::string product_;
    std::string file_;
};

}  // namespace

std::unique_ptr<Command> makeUploadConfigCommand() {
    return std::make_unique<UploadConfigCommand>();
}
