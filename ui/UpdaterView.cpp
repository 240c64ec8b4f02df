#include "ui/UpdaterView.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/UpdateController.h"
#include "ui/Colors.h"
#include "ui/ElidedLabel.h"
#include "ui/Fonts.h"
#include "ui/LogPanel.h"
#include "ui/StatusDot.h"

namespace {

constexpr int kProgressSteps = 1000;

QLabel* makeLabel(int pixelSize, const QColor& color, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setFont(Fonts::system(pixelSize));
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, color);
    label->setPalette(palette);
    return label;
}

}  // namespace

UpdaterView::UpdaterView(UpdateController& controller, QWidget* parent)
    : QWidget(parent),
      m_dot(new StatusDot(this)),
      m_status(new ElidedLabel(this)),
      m_port(makeLabel(12, AppColors::secondaryText(), this)),
      m_firmware(makeLabel(13, AppColors::secondaryText(), this)),
      m_progress(new QProgressBar(this)),
      m_button(new QPushButton(QStringLiteral("Update Firmware"), this)),
      m_log(new LogPanel(this)) {
    setFixedSize(480, 420);
    buildLayout();
    connectTo(controller);
}

void UpdaterView::buildLayout() {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(20, 20, 20, 20);
    column->setSpacing(16);

    auto* statusRow = new QHBoxLayout;
    statusRow->setSpacing(8);
    m_status->setFont(Fonts::system(14));
    m_port->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    statusRow->addWidget(m_dot, 0, Qt::AlignVCenter);
    statusRow->addWidget(m_status, 0, Qt::AlignVCenter);
    statusRow->addWidget(m_port, 0, Qt::AlignVCenter);
    statusRow->addStretch(1);
    column->addLayout(statusRow);

    m_firmware->setWordWrap(true);
    m_firmware->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    column->addWidget(m_firmware);

    m_progress->setTextVisible(false);
    m_progress->hide();
    column->addWidget(m_progress);

    m_button->setFont(Fonts::system(15, QFont::Medium));
    m_button->setMinimumHeight(m_button->fontMetrics().height() + 2 * 8);
    m_button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    column->addWidget(m_button);

    column->addWidget(m_log, 1);
}

void UpdaterView::connectTo(UpdateController& controller) {
    DeviceMonitor* monitor = controller.deviceMonitor();
    // The state leaves "ready" only once the worker has begun, so a quick second
    // click would otherwise reach the controller and be refused as an error.
    connect(m_button, &QPushButton::clicked, &controller, [&controller] {
        if (!controller.jobRunning()) {
            controller.updateFirmware();
        }
    });
    connect(&controller, &UpdateController::stateChanged, this, &UpdaterView::showState);
    connect(&controller, &UpdateController::statusMessageChanged, this,
            &UpdaterView::showStatusMessage);
    connect(&controller, &UpdateController::logMessagesChanged, this, &UpdaterView::showLog);
    connect(&controller, &UpdateController::customFirmwareURLChanged, this,
            [this, &controller] { showFirmwareLabel(controller.firmwareLabel()); });
    const auto followMonitor = [this, monitor] {
        showConnection(monitor->isConnected(), monitor->port());
    };
    connect(monitor, &DeviceMonitor::portPathChanged, this, followMonitor);
    connect(monitor, &DeviceMonitor::isConnectedChanged, this, followMonitor);

    showState(controller.state());
    showStatusMessage(controller.statusMessage());
    showFirmwareLabel(controller.firmwareLabel());
    showLog(controller.logMessages());
    followMonitor();
}

void UpdaterView::showState(const UpdateState& state) {
    m_state = state;
    using Kind = UpdateState::Kind;
    switch (state.kind()) {
        case Kind::flashing:
        case Kind::uploadingConfig: {
            QPalette tinted = m_progress->palette();
            tinted.setColor(QPalette::Highlight, AppColors::accent());
            m_progress->setPalette(tinted);
            m_progress->setRange(0, kProgressSteps);
            m_progress->setValue(qRound(qBound(0.0f, state.progress(), 1.0f) * kProgressSteps));
            m_progress->show();
            break;
        }
        case Kind::enteringBootloader:
        case Kind::syncing:
        case Kind::uploadingStub:
        case Kind::probing:
            m_progress->setPalette(QPalette());
            m_progress->setRange(0, 0);
            m_progress->show();
            break;
        case Kind::idle:
        case Kind::ready:
        case Kind::verifying:
        case Kind::flashComplete:
        case Kind::configComplete:
        case Kind::error:
            m_progress->hide();
            break;
    }
    updateButtonEnabled();
}

void UpdaterView::showConnection(bool isConnected, const std::optional<QString>& portPath) {
    m_isConnected = isConnected;
    m_dot->setColor(isConnected ? AppColors::connected() : AppColors::disconnected());
    m_port->setVisible(portPath.has_value());
    m_port->setText(portPath ? QLatin1Char('(') + *portPath + QLatin1Char(')') : QString());
    updateButtonEnabled();
}

void UpdaterView::showStatusMessage(const QString& message) {
    m_status->setFullText(message);
}

void UpdaterView::showFirmwareLabel(const QString& label) {
    m_firmware->setText(label);
}

void UpdaterView::showLog(const QStringList& lines) {
    m_log->setLines(lines);
}

void UpdaterView::updateButtonEnabled() {
    m_button->setEnabled(m_isConnected && !m_state.isBusy());
}
