#include "ui/UpdaterView.h"

#include <QAction>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "app/Texts.h"
#include "app/UpdateController.h"
#include "app/operations/Repair.h"
#include "app/texts/AccessibilityTexts.h"
#include "ui/Colors.h"
#include "ui/ElidedLabel.h"
#include "ui/Fonts.h"
#include "ui/Layouts.h"
#include "ui/LogPanel.h"
#include "ui/ResultBanner.h"
#include "ui/StatusDot.h"

namespace {

constexpr int kProgressSteps = 1000;
constexpr QSize kDesignedSize(480, 420);

QLabel* makeLabel(int pixelSize, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setFont(Fonts::system(pixelSize));
    return label;
}

// The bar's name says what it measures; the status line beside it says more.
QString stageOf(UpdateState::Kind kind) {
    using Kind = UpdateState::Kind;
    switch (kind) {
        case Kind::flashing:
            return Texts::writingFirmwareStage();
        case Kind::uploadingConfig:
            return Texts::uploadingConfigStage();
        case Kind::downloadingConfig:
            return Texts::readingConfigStage();
        case Kind::checkingStartup:
            return Texts::checkingStartupStage();
        case Kind::idle:
        case Kind::ready:
        case Kind::flashComplete:
        case Kind::configComplete:
        case Kind::error:
            break;
    }
    return QString();
}

}  // namespace

UpdaterView::UpdaterView(UpdateController& controller, QWidget* parent)
    : QWidget(parent),
      dot_(new StatusDot(this)),
      status_(new ElidedLabel(this)),
      port_(makeLabel(12, this)),
      notFound_(makeLabel(12, this)),
      firmware_(makeLabel(13, this)),
      newer_(makeLabel(12, this)),
      progress_(new QProgressBar(this)),
      button_(new QPushButton(Texts::updateFirmwareButton(), this)),
      banner_(new ResultBanner(this)),
      restorePrevious_(new QAction(Texts::restorePreviousButton(), this)),
      undoUpdate_(new QAction(Texts::undoUpdateButton(), this)),
      repair_(new QAction(Texts::repairButton(), this)),
      log_(new LogPanel(this)) {
    buildLayout();
    recolour();
    connectTo(controller);
}

void UpdaterView::buildLayout() {
    QVBoxLayout* column = Layouts::windowColumn(this, 16);

    auto* statusRow = new QHBoxLayout;
    statusRow->setSpacing(8);
    status_->setFont(Fonts::system(14));
    port_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    statusRow->addWidget(dot_, 0, Qt::AlignVCenter);
    statusRow->addWidget(status_, 0, Qt::AlignVCenter);
    statusRow->addWidget(port_, 0, Qt::AlignVCenter);
    statusRow->addStretch(1);
    column->addLayout(statusRow);

    notFound_->setTextFormat(Qt::RichText);
    notFound_->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    notFound_->hide();
    column->addWidget(notFound_);

    firmware_->setWordWrap(true);
    firmware_->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    column->addWidget(firmware_);

    newer_->setTextFormat(Qt::RichText);
    newer_->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    newer_->hide();
    column->addWidget(newer_);

    progress_->setTextVisible(false);
    progress_->hide();
    column->addWidget(progress_);

    button_->setFont(Fonts::system(15, QFont::Medium));
    button_->setMinimumHeight(button_->fontMetrics().height() + 2 * 8);
    button_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    column->addWidget(button_);
    column->addWidget(banner_);

    column->addWidget(log_, 1);
}

void UpdaterView::connectTo(UpdateController& controller) {
    DeviceMonitor* monitor = controller.deviceMonitor();
    // The state leaves "ready" only once the worker has begun, so a quick second
    // click would otherwise reach the controller and be refused as an error.
    connect(button_, &QPushButton::clicked, &controller, [&controller] {
        if (!controller.jobRunning()) {
            controller.updateFirmware();
        }
    });
    connect(&controller, &UpdateController::stateChanged, this, &UpdaterView::showState);
    connect(&controller, &UpdateController::statusMessageChanged, this,
            &UpdaterView::showStatusMessage);
    connect(&controller, &UpdateController::logChanged, this, &UpdaterView::showLog);
    connect(&controller, &UpdateController::resultChanged, this, &UpdaterView::showResult);
    connect(restorePrevious_, &QAction::triggered, &controller,
            &UpdateController::restorePreviousConfiguration);
    connect(undoUpdate_, &QAction::triggered, &controller, &UpdateController::undoUpdate);
    connect(repair_, &QAction::triggered, this, &UpdaterView::repairRequested);
    connect(controller.connectionHint(), &ConnectionHint::offeredChanged, this,
            &UpdaterView::showConnectionHint);
    connect(notFound_, &QLabel::linkActivated, this, &UpdaterView::connectionCheckRequested);
    connect(&controller, &UpdateController::customFirmwareURLChanged, this,
            [this, &controller] { showFirmwareLabel(controller.firmwareLabel()); });
    connect(newer_, &QLabel::linkActivated, this, &UpdaterView::firmwareVersionsRequested);
    FirmwareChoice* choice = controller.firmwareChoice();
    const auto followCatalogue = [this, choice] {
        const auto* listing = std::get_if<FirmwareListing>(&choice->listing().cause);
        const auto newer = listing ? listing->newerStable : std::nullopt;
        showNewerFirmware(newer != choice->chosen() ? newer : std::nullopt);
    };
    connect(choice, &FirmwareChoice::listed, this, followCatalogue);
    connect(choice, &FirmwareChoice::chosenChanged, this, followCatalogue);
    const auto followMonitor = [this, monitor] {
        showConnection(monitor->isConnected(), monitor->port());
    };
    connect(monitor, &DeviceMonitor::portPathChanged, this, followMonitor);
    connect(monitor, &DeviceMonitor::isConnectedChanged, this, followMonitor);

    showState(controller.state());
    showStatusMessage(controller.statusMessage());
    showFirmwareLabel(controller.firmwareLabel());
    followCatalogue();
    showLog(controller.log());
    showConnectionHint(controller.connectionHint()->offered());
    followMonitor();
}

void UpdaterView::recolour() {
    const QColor window = palette().color(QPalette::Window);
    for (QLabel* label : {port_, firmware_}) {
        Palettes::setColour(label, QPalette::WindowText, AppColors::secondaryText(window));
    }
    // A link's colour is fixed when its text is parsed, so it is written into it.
    notFound_->setText(
        QStringLiteral("<a href=\"check\" style=\"color: %1;\">%2</a>")
            .arg(AppColors::accentText(window).name(), Texts::plotterNotFound().toHtmlEscaped()));
    newer_->setText(newerVersion_
                        ? QStringLiteral("<a href=\"versions\" style=\"color: %1;\">%2</a>")
                              .arg(AppColors::accentText(window).name(),
                                   Texts::newerFirmwareAvailable(*newerVersion_).toHtmlEscaped())
                        : QString());
}

void UpdaterView::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        recolour();
    }
}

QSize UpdaterView::sizeHint() const {
    return minimumSizeHint();
}

// The banner's and the firmware line's wrapped text need a height for the width
// they have, which the window's own layout does not ask for.
QSize UpdaterView::minimumSizeHint() const {
    const int width = std::max(this->width(), kDesignedSize.width());
    const int needed = layout()->hasHeightForWidth() ? layout()->minimumHeightForWidth(width)
                                                     : layout()->minimumSize().height();
    return {kDesignedSize.width(), std::max(kDesignedSize.height(), needed)};
}

void UpdaterView::showState(const UpdateState& state) {
    state_ = state;
    const QString stage = stageOf(state.kind());
    if (!stage.isEmpty() && progress_->accessibleName() != stage) {
        progress_->setAccessibleName(stage);
    }
    using Kind = UpdateState::Kind;
    switch (state.kind()) {
        case Kind::flashing:
        case Kind::uploadingConfig: {
            QPalette tinted = progress_->palette();
            tinted.setColor(QPalette::Highlight, AppColors::accent());
            progress_->setPalette(tinted);
            progress_->setRange(0, kProgressSteps);
            progress_->setValue(qRound(qBound(0.0f, state.progress(), 1.0f) * kProgressSteps));
            progress_->show();
            break;
        }
        case Kind::downloadingConfig:
        case Kind::checkingStartup:
            progress_->setPalette(QPalette());
            progress_->setRange(0, 0);
            progress_->show();
            break;
        case Kind::idle:
        case Kind::ready:
        case Kind::flashComplete:
        case Kind::configComplete:
        case Kind::error:
            progress_->hide();
            break;
    }
    updateButtonEnabled();
}

void UpdaterView::showConnection(bool isConnected, const std::optional<QString>& portPath) {
    isConnected_ = isConnected;
    dot_->setColor(isConnected ? AppColors::connected() : AppColors::disconnected());
    port_->setVisible(portPath.has_value());
    port_->setText(portPath ? QLatin1Char('(') + *portPath + QLatin1Char(')') : QString());
    updateButtonEnabled();
}

void UpdaterView::showStatusMessage(const QString& message) {
    status_->setFullText(message);
}

void UpdaterView::showConnectionHint(bool offered) {
    notFound_->setVisible(offered);
}

void UpdaterView::showFirmwareLabel(const QString& label) {
    firmware_->setText(label);
}

void UpdaterView::showNewerFirmware(const std::optional<QString>& version) {
    newerVersion_ = version;
    recolour();
    newer_->setVisible(version.has_value());
}

void UpdaterView::showResult(const std::optional<Outcome>& result) {
    QList<QAction*> offers;
    const StartupCause* startup = result ? result->startup() : nullptr;
    if (startup != nullptr && startup->previous) {
        offers << restorePrevious_;
    }
    // The way back to the flash the machine ran from comes first, before the repair.
    if (startup != nullptr && startup->snapshot && !startup->undone &&
        result->kind == Outcome::Kind::notStarting) {
        offers << undoUpdate_;
    }
    if (result && Repair::helps(*result)) {
        offers << repair_;
    }
    banner_->showSummary(result ? summarize(*result, Texts::Audience::window) : std::nullopt,
                         offers);
}

void UpdaterView::showLog(const LogEntries& entries) {
    log_->setEntries(entries);
}

void UpdaterView::updateButtonEnabled() {
    button_->setEnabled(isConnected_ && !state_.isBusy());
}
