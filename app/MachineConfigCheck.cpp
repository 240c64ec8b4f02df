#include "app/MachineConfigCheck.h"

#include <QFileInfo>

#include <yaml-cpp/eventhandler.h>
#include <yaml-cpp/yaml.h>

#include <sstream>
#include <string>

#include "app/ResourceBundle.h"
#include "app/texts/FileTexts.h"

namespace {

struct LeadByte {
    qsizetype length;
    char32_t bits;
    char32_t smallest;  // below it the sequence is an overlong form
};

std::optional<LeadByte> leadByte(uint8_t lead) {
    if ((lead & 0xE0) == 0xC0) {
        return LeadByte{2, lead & 0x1Fu, 0x80};
    }
    if ((lead & 0xF0) == 0xE0) {
        return LeadByte{3, lead & 0x0Fu, 0x800};
    }
    if ((lead & 0xF8) == 0xF0) {
        return LeadByte{4, lead & 0x07u, 0x10000};
    }
    return std::nullopt;
}

// Length of the UTF-8 sequence that starts at `at`, or 0 when it is not a
// well-formed one (overlong forms, surrogates and code points past U+10FFFF too).
qsizetype sequenceLength(const QByteArray& text, qsizetype at) {
    const auto first = static_cast<uint8_t>(text[at]);
    if (first < 0x80) {
        return 1;
    }
    const auto lead = leadByte(first);
    if (!lead || text.size() - at < lead->length) {
        return 0;
    }
    char32_t codePoint = lead->bits;
    for (qsizetype i = 1; i < lead->length; ++i) {
        const auto next = static_cast<uint8_t>(text[at + i]);
        if ((next & 0xC0) != 0x80) {
            return 0;
        }
        codePoint = codePoint << 6 | (next & 0x3F);
    }
    const bool surrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
    return codePoint < lead->smallest || codePoint > 0x10FFFF || surrogate ? 0 : lead->length;
}

QString position(int line, int column) {
    return QStringLiteral("line %1, column %2: ").arg(line).arg(column);
}

std::optional<QString> utf8Problem(const QByteArray& text) {
    int line = 1;
    int column = 1;
    for (qsizetype at = 0; at < text.size();) {
        const qsizetype length = sequenceLength(text, at);
        if (length == 0) {
            return position(line, column) + QStringLiteral("not valid UTF-8");
        }
        if (text[at] == '\n') {
            ++line;
            column = 0;
        }
        ++column;
        at += length;
    }
    return std::nullopt;
}

// Follows the parser's events: the kind of the first document's top level, and
// whether the parser still moves on. yaml-cpp 0.7 meets some tokens it cannot
// take at the top level (a leading ',' for one) by starting document after
// document there, without end.
class DocumentOutline : public YAML::EventHandler {
  public:
    bool firstIsMapping() const { return firstIsMapping_.value_or(false); }
    /// Where the parser stopped moving on, if it did.
    const std::optional<YAML::Mark>& stalledAt() const { return stalledAt_; }

    void OnDocumentStart(const YAML::Mark& mark) override {
        if (lastStart_ && lastStart_->pos == mark.pos) {
            stalledAt_ = mark;
        }
        lastStart_ = mark;
    }
    void OnDocumentEnd() override {}
    void OnNull(const YAML::Mark&, YAML::anchor_t) override { node(false); }
    void OnAlias(const YAML::Mark&, YAML::anchor_t) override { node(false); }
    void OnScalar(const YAML::Mark&, const std::string&, YAML::anchor_t,
                  const std::string&) override {
        node(false);
    }
    void OnSequenceStart(const YAML::Mark&, const std::string&, YAML::anchor_t,
                         YAML::EmitterStyle::value) override {
        node(false);
    }
    void OnSequenceEnd() override {}
    void OnMapStart(const YAML::Mark&, const std::string&, YAML::anchor_t,
                    YAML::EmitterStyle::value) override {
        node(true);
    }
    void OnMapEnd() override {}

  private:
    // The first node of the stream is the first document's top level.
    void node(bool mapping) {
        if (!firstIsMapping_) {
            firstIsMapping_ = mapping;
        }
    }

    std::optional<bool> firstIsMapping_;
    std::optional<YAML::Mark> lastStart_;
    std::optional<YAML::Mark> stalledAt_;
};

QString unexpected(const QByteArray& text, const YAML::Mark& mark) {
    const char c = mark.pos >= 0 && mark.pos < text.size() ? text[mark.pos] : '\0';
    const QString what = c > ' ' && c < 0x7F ? QStringLiteral("'") + QChar::fromLatin1(c) + '\''
                                             : QStringLiteral("text");
    return position(mark.line + 1, mark.column + 1) + QStringLiteral("unexpected ") + what;
}

std::optional<QString> yamlProblem(const QByteArray& text) {
    std::istringstream stream(text.toStdString());
    YAML::Parser parser(stream);
    DocumentOutline outline;
    try {
        while (parser.HandleNextDocument(outline)) {
            if (const auto& stalled = outline.stalledAt()) {
                return unexpected(text, *stalled);
            }
        }
    } catch (const YAML::Exception& failure) {
        const QString message = QString::fromStdString(failure.msg);
        if (failure.mark.is_null()) {
            return message;
        }
        return position(failure.mark.line + 1, failure.mark.column + 1) + message;
    }
    if (!outline.firstIsMapping()) {
        return QStringLiteral("the top level is not a mapping of settings");
    }
    return std::nullopt;
}

}  // namespace

std::optional<QString> machineConfigProblem(const QByteArray& bytes) {
    if (bytes.size() > kMaxMachineConfigSize) {
        return QStringLiteral("larger than 1 MiB");
    }
    if (auto problem = utf8Problem(bytes)) {
        return problem;
    }
    return yamlProblem(bytes);
}

std::variant<QByteArray, Outcome> checkConfigFile(const QString& path) {
    const QString fileName = QFileInfo(path).fileName();
    QString failure;
    auto bytes = readWholeFile(path, &failure);
    if (!bytes) {
        return Outcome::make(Outcome::Kind::refused, Texts::fileUnreadable(fileName));
    }
    return checkConfigBytes(path, *bytes);
}

std::variant<QByteArray, Outcome> checkConfigBytes(const QString& path, const QByteArray& bytes) {
    if (const auto problem = machineConfigProblem(bytes)) {
        return Outcome::make(Outcome::Kind::refused,
                             Texts::notAConfiguration(QFileInfo(path).fileName(), *problem));
    }
    return bytes;
}
