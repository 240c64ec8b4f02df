#include "app/ConfigDiff.h"

#include <yaml-cpp/yaml.h>

#include <dtl/dtl.hpp>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using Leaves = std::map<std::string, std::string>;

// An alias may name the node that holds it, and a few nested aliases expand into
// millions of values; both walks are cut off.
constexpr int kMaxDepth = 64;
constexpr size_t kMaxLeaves = 100'000;

std::string keyText(const YAML::Node& key) {
    return key.IsScalar() ? key.Scalar() : YAML::Dump(key);
}

std::string childPath(const std::string& path, const std::string& key) {
    return path.empty() ? key : path + "/" + key;
}

void flatten(const YAML::Node& node, const std::string& path, int depth, Leaves& leaves) {
    if (depth > kMaxDepth || leaves.size() >= kMaxLeaves) {
        throw std::length_error("configuration too deep or too large");
    }
    switch (node.Type()) {
        case YAML::NodeType::Map:
            if (node.size() == 0) {
                leaves[path] = "{}";
            }
            for (const auto& entry : node) {
                flatten(entry.second, childPath(path, keyText(entry.first)), depth + 1, leaves);
            }
            break;
        case YAML::NodeType::Sequence:
            if (node.size() == 0) {
                leaves[path] = "[]";
            }
            for (size_t i = 0; i < node.size(); ++i) {
                flatten(node[i], childPath(path, std::to_string(i)), depth + 1, leaves);
            }
            break;
        case YAML::NodeType::Scalar:
            leaves[path] = node.Scalar();
            break;
        case YAML::NodeType::Null:
            leaves[path] = "null";
            break;
        case YAML::NodeType::Undefined:
            break;
    }
}

QString position(const YAML::Mark& mark) {
    if (mark.is_null()) {
        return {};
    }
    return QStringLiteral(" (line %1, column %2)").arg(mark.line + 1).arg(mark.column + 1);
}

struct Reading {
    Leaves leaves;
    QString error;
};

Reading readLeaves(const ConfigText& side) {
    try {
        const YAML::Node root = YAML::Load(side.bytes.toStdString());
        Reading reading;
        // An empty file, or one of comments only, holds no keys at all.
        if (!root.IsNull()) {
            flatten(root, {}, 0, reading.leaves);
        }
        return reading;
    } catch (const YAML::Exception& e) {
        return {{},
                side.label + QStringLiteral(": not valid YAML") + position(e.mark) +
                    QStringLiteral(": ") + QString::fromStdString(e.msg)};
    } catch (const std::length_error&) {
        return {{}, side.label + QStringLiteral(": nested too deeply or too large to compare")};
    }
}

// A block scalar spans lines; shown on one, so each difference stays one line.
QString shown(const std::string& value) {
    return QString::fromStdString(value).replace(QLatin1Char('\n'), QLatin1String("\\n"));
}

QStringList keyDifferences(const Leaves& first, const Leaves& second) {
    QStringList lines;
    auto a = first.begin();
    auto b = second.begin();
    while (a != first.end() || b != second.end()) {
        if (b == second.end() || (a != first.end() && a->first < b->first)) {
            lines << QStringLiteral("- ") + shown(a->first) + QStringLiteral(": ") +
                         shown(a->second);
            ++a;
        } else if (a == first.end() || b->first < a->first) {
            lines << QStringLiteral("+ ") + shown(b->first) + QStringLiteral(": ") +
                         shown(b->second);
            ++b;
        } else {
            if (a->second != b->second) {
                lines << shown(a->first) + QStringLiteral(": ") + shown(a->second) +
                             QStringLiteral(" → ") + shown(b->second);
            }
            ++a;
            ++b;
        }
    }
    return lines;
}

std::vector<std::string> linesOf(const QByteArray& bytes) {
    std::vector<std::string> lines;
    const std::string text = bytes.toStdString();
    for (size_t start = 0; start < text.size();) {
        size_t end = text.find('\n', start);
        if (end == std::string::npos) {
            end = text.size();
        }
        std::string line = text.substr(start, end - start);
        if (!line.empty() && line.back() == '\r') {
            line.pop_back();
        }
        lines.push_back(std::move(line));
        start = end + 1;
    }
    return lines;
}

QString unifiedDiff(const ConfigText& first, const ConfigText& second) {
    const std::vector<std::string> before = linesOf(first.bytes);
    const std::vector<std::string> after = linesOf(second.bytes);
    if (before == after) {
        return {};
    }
    dtl::Diff<std::string, std::vector<std::string>> diff(before, after);
    diff.compose();
    diff.composeUnifiedHunks();
    std::ostringstream out;
    out << "--- " << first.label.toStdString() << "\n+++ " << second.label.toStdString() << "\n";
    diff.printUnifiedFormat(out);
    return QString::fromStdString(out.str());
}

}  // namespace

ConfigComparison compareConfigs(const ConfigText& first, const ConfigText& second) {
    ConfigComparison comparison;
    const Reading before = readLeaves(first);
    const Reading after = readLeaves(second);
    for (const QString& error : {before.error, after.error}) {
        if (!error.isEmpty()) {
            comparison.errors << error;
        }
    }
    if (comparison.errors.isEmpty()) {
        comparison.keyDifferences = keyDifferences(before.leaves, after.leaves);
    }
    comparison.lineDiff = unifiedDiff(first, second);
    return comparison;
}
