#include "ControllerHarness.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTest>
#include <cstring>

ControllerHarness::ControllerHarness(const QString& resourcesRoot) {
    auto port = m_port;
    m_controller = std::make_unique<UpdateController>(
        ResourceBundle(resourcesRoot), [port](uint16_t, uint16_t) -> char* {
            return port->isEmpty() ? nullptr : strdup(port->constData());
        });
    connect(m_controller.get(), &UpdateController::stateChanged, this,
            [this](const UpdateState& state) { m_states.append(state); });
    connect(m_controller.get(), &UpdateController::statusMessageChanged, this,
            [this](const QString& status) { m_statuses.append(status); });
}

ControllerHarness::~ControllerHarness() = default;

void ControllerHarness::setPort(const QString& path) {
    *m_port = path.toUtf8();
}

bool ControllerHarness::waitForConnection(bool connected, int timeoutMs) {
    const UpdateState wanted = connected ? UpdateState::ready() : UpdateState::idle();
    m_states.clear();
    return QTest::qWaitFor([&] { return m_states.contains(wanted); }, timeoutMs);
}

void ControllerHarness::clearHistory() {
    m_states.clear();
    m_statuses.clear();
}

std::optional<UpdateState> ControllerHarness::waitForOutcome(int timeoutMs) {
    const auto isOutcome = [](const UpdateState& state) {
        using K = UpdateState::Kind;
        return state.kind() == K::error || state.kind() == K::flashComplete ||
               state.kind() == K::configComplete;
    };
    std::optional<UpdateState> outcome;
    const bool found = QTest::qWaitFor(
        [&] {
            for (const auto& state : m_states) {
                if (isOutcome(state)) {
                    outcome = state;
                    return true;
                }
            }
            return false;
        },
        timeoutMs);
    return found ? outcome : std::nullopt;
}

ResourcesWithout::ResourcesWithout(const QStringList& missing) {
    const QDir source(QStringLiteral(TFU_DEV_RESOURCES_DIR));
    const QDir target(m_dir.path());
    target.mkpath(QStringLiteral("configs"));
    QDirIterator files(source.path(), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString relative = source.relativeFilePath(files.next());
        if (!missing.contains(relative)) {
            QFile::copy(source.filePath(relative), target.filePath(relative));
        }
    }
}
