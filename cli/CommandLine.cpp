#include "cli/CommandLine.h"

#include <sstream>

#include "app/BuildConfig.h"
#include "app/Texts.h"
#include "cli/Commands.h"
#include "sim/Startup.h"

namespace {

constexpr int kMostSimulated = 64;
constexpr qsizetype kHelpColumns = 79;
constexpr qsizetype kNameColumns = 26;

// `text` with its lines broken between words to fit `columns`.
std::string wrapped(const std::string& text, qsizetype columns) {
    QStringList lines;
    for (const QString& paragraph : QString::fromStdString(text).split(QLatin1Char('\n'))) {
        QString line;
        for (const QString& word : paragraph.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            if (!line.isEmpty() && line.size() + 1 + word.size() > columns) {
                lines << line;
                line.clear();
            }
            line += (line.isEmpty() ? QString() : QStringLiteral(" ")) + word;
        }
        lines << line;
    }
    return lines.join(QLatin1Char('\n')).toStdString();
}

// Help text fitted to the help's width; a subcommand's description in full on its
// own help, only its first sentence in the list of subcommands.
class HelpFormatter : public CLI::Formatter {
  public:
    HelpFormatter() { column_width(kNameColumns); }

    std::string make_description(const CLI::App* app) const override {
        return wrapped(CLI::Formatter::make_description(app), kHelpColumns) + "\n";
    }

    std::string make_option_desc(const CLI::Option* option) const override {
        return wrapped(CLI::Formatter::make_option_desc(option), kHelpColumns - kNameColumns);
    }

    std::string make_subcommand(const CLI::App* subcommand) const override {
        const std::string& description = subcommand->get_description();
        std::stringstream out;
        CLI::detail::format_help(out, subcommand->get_display_name(true),
                                 description.substr(0, description.find(". ") + 1),
                                 get_column_width());
        return out.str();
    }
};

std::vector<std::string> startupNameList() {
    std::vector<std::string> names;
    for (const sim::Startup startup : sim::kStartups) {
        names.emplace_back(sim::startupName(startup));
    }
    return names;
}

std::string startupNames() {
    std::string joined;
    for (const std::string& name : startupNameList()) {
        joined += (joined.empty() ? "" : ", ") + name;
    }
    return joined;
}

std::string exitStatusFooter(const Command& command) {
    QString footer = QStringLiteral("Exit status:\n");
    for (const QString& line : command.exitStatusHelp()) {
        footer += QStringLiteral("  ") + line + QLatin1Char('\n');
    }
    return footer.toStdString();
}

}  // namespace

CommandLine::CommandLine()
    : app_(
          "Updates the firmware and the machine configuration of Corvane drawing machines "
          "(ESP32-S3, USB 303a:1001) from a terminal, for one plotter or several at once.",
          "teskal-flash"),
      commands_(makeCommands()) {
    app_.formatter(std::make_shared<HelpFormatter>());
    app_.set_version_flag(
        "--version",
        Texts::programVersion(QStringLiteral("teskal-flash"), BuildConfig::programVersion(),
                              BuildConfig::buildDate(), BuildConfig::firmwareVersion())
            .toStdString(),
        "Print the program's version, its build date and the bundled firmware's "
        "version");
    app_.require_subcommand(1);
    for (const auto& command : commands_) {
        CLI::App* subcommand = command->define(app_);
        addCommonOptions(*subcommand, *command);
        subcommand->footer(subcommand->get_footer() + exitStatusFooter(*command));
        subcommands_.emplace_back(subcommand, command.get());
    }
    // Set last: a subcommand takes its parent's footer when it is added.
    app_.footer(
        "Try it without hardware: teskal-flash flash --sim\n"
        "Run 'teskal-flash COMMAND --help' for a command's options and exit statuses.");
}

void CommandLine::addCommonOptions(CLI::App& subcommand, const Command& command) {
    if (command.ports() == Command::Ports::one) {
        subcommand.add_option("--port", options_.ports, "Serial port (default: the first plotter)")
            ->type_name("P")
            ->expected(1)
            ->allow_extra_args(false)
            ->multi_option_policy(CLI::MultiOptionPolicy::Throw);
    }
    if (command.ports() == Command::Ports::several) {
        CLI::Option* port =
            subcommand
                .add_option("--port", options_.ports,
                            "Serial port (default: the first plotter); repeat it for several "
                            "plotters at once, one process each")
                ->type_name("P")
                // One port per --port, so that a FILE after it stays the command's.
                ->allow_extra_args(false);
        subcommand.add_flag("--all", options_.all, "Every connected plotter at once")
            ->excludes(port);
    }
    subcommand
        .add_option("--resources", options_.resources,
                    "Take the images and configurations from this resources folder")
        ->check(CLI::Validator(CLI::ExistingDirectory).description(""))
        ->type_name("DIR");
    subcommand.add_flag("--verbose", options_.verbose,
                        "Print every log line of the flasher library too");
    subcommand.add_flag("--json", options_.json,
                        "Print one JSON object a line: log, progress and a last result; with "
                        "several plotters each carries \"port\"");
    subcommand
        .add_option("--sim", options_.simulated,
                    "Attach N (1 to 64) simulated plotters, sim1 to simN, and take the "
                    "development set, which is refused for every other port")
        ->expected(0, 1)
        ->default_str("1")
        ->check(CLI::Range(1, kMostSimulated).description(""))
        ->type_name("[N]");
    subcommand
        .add_option("--sim-startup", options_.simStartup,
                    "How the simulated plotters start after a write: " + startupNames() +
                        " (default healthy)")
        ->check(CLI::IsMember(startupNameList()).description(""))
        ->type_name("NAME");
}

std::variant<const Command*, int> CommandLine::parse(int argc, char** argv) {
    // "--sim" takes a count only when one follows it, so that in "--sim FILE" the
    // file stays the command's.
    std::vector<std::string> arguments(argv, argv + argc);
    for (size_t i = 0; i < arguments.size(); ++i) {
        const bool countFollows =
            i + 1 < arguments.size() && !arguments[i + 1].empty() &&
            arguments[i + 1].find_first_not_of("0123456789") == std::string::npos;
        if (arguments[i] == "--sim" && !countFollows) {
            arguments[i] = "--sim=1";
        }
    }
    std::vector<char*> pointers;
    for (std::string& argument : arguments) {
        pointers.push_back(argument.data());
    }
    try {
        app_.parse(static_cast<int>(pointers.size()), pointers.data());
    } catch (const CLI::ParseError& error) {
        const int status = app_.exit(error);
        return status == 0 ? 0 : OutcomeTable::usage;
    }
    for (const auto& [subcommand, command] : subcommands_) {
        if (subcommand->parsed()) {
            return command;
        }
    }
    return OutcomeTable::usage;
}
