#include "ui/ConnectionCheckWindow.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QProcess>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/Texts.h"
#include "ui/Colors.h"
#include "ui/Fonts.h"
#include "ui/Layouts.h"

namespace {

constexpr int kWidth = 480;

QLabel* makeLabel(const QString& text, int pixelSize, const QColor& color, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setFont(Fonts::system(pixelSize));
    if (color.isValid()) {
        QPalette palette = label->palette();
        palette.setColor(QPalette::WindowText, color);
        label->setPalette(palette);
    }
    return label;
}

QLabel* makeMark(CheckRow::Mark mark, const QColor& window, QWidget* parent) {
    switch (mark) {
        case CheckRow::Mark::ok:
            return makeLabel(QStringLiteral("\u2713"), 14, AppColors::accentText(window), parent);
        case CheckRow::Mark::problem:
            return makeLabel(QStringLiteral("\u2717"), 14, AppColors::problemText(window), parent);
        case CheckRow::Mark::info:
            break;
    }
    return makeLabel(QStringLiteral("\u2022"), 14, AppColors::secondaryText(window), parent);
}

QWidget* makeRow(const CheckRow& row, const QColor& window, QWidget* parent) {
    auto* widget = new QWidget(parent);
    auto* line = new QHBoxLayout(widget);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(8);
    QLabel* mark = makeMark(row.mark, window, widget);
    mark->setFixedWidth(16);
    line->addWidget(mark, 0, Qt::AlignTop);
    auto* text = new QVBoxLayout;
    text->setSpacing(2);
    text->addWidget(makeLabel(row.line, 13, QColor(), widget));
    if (!row.fix.isEmpty()) {
        text->addWidget(makeLabel(row.fix, 12, AppColors::secondaryText(window), widget));
    }
    line->addLayout(text, 1);
    return widget;
}

}  // namespace

bool ConnectionCheckWindow::launchDetached(const QString& program, const QStringList& arguments) {
    return QProcess::startDetached(program, arguments);
}

ConnectionCheckWindow::ConnectionCheckWindow(UsbSurvey survey, PermissionRule rule, Launcher launch,
                                             QWidget* parent)
    : QWidget(parent, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                          Qt::WindowCloseButtonHint),
      checks_(Texts::ruleBelow(), std::move(survey)),
      rule_(std::move(rule)),
      launch_(std::move(launch)),
      intro_(makeLabel(Texts::connectionCheckIntro(), 12, QColor(), this)),
      rows_(new QWidget(this)),
      notice_(makeLabel(QString(), 12, QColor(), this)),
      installRule_(new QPushButton(Texts::installRule(), this)),
      close_(new QPushButton(Texts::closeButton(), this)) {
    setWindowTitle(Texts::connectionCheck());
    setFixedWidth(kWidth);
    buildLayout();
    recolour();
    timer_.setInterval(kCheckIntervalMs);
    connect(&timer_, &QTimer::timeout, this, &ConnectionCheckWindow::refresh);
    connect(installRule_, &QPushButton::clicked, this, &ConnectionCheckWindow::installRule);
    connect(close_, &QPushButton::clicked, this, &QWidget::close);
    close_->setShortcut(QKeySequence(Qt::Key_Escape));
    installRule_->setEnabled(rule_.canInstall());
    if (!rule_.canInstall()) {
        installRule_->setToolTip(Texts::installRuleByHand(rule_.howTo()));
    }
}

void ConnectionCheckWindow::buildLayout() {
    QVBoxLayout* column = Layouts::windowColumn(this, 16);

    column->addWidget(intro_);

    auto* rows = new QVBoxLayout(rows_);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(10);
    column->addWidget(rows_);

    notice_->hide();
    column->addWidget(notice_);

    auto* buttons = new QHBoxLayout;
    installRule_->hide();
    buttons->addWidget(installRule_);
    buttons->addStretch(1);
    buttons->addWidget(close_);
    column->addLayout(buttons);
}

void ConnectionCheckWindow::showRestarting(bool restarting) {
    restarting_ = restarting;
    refresh();
}

void ConnectionCheckWindow::refresh() {
    Checklist found = checks_.check();
    if (restarting_) {
        CheckConnection::markRestarting(found, Texts::Audience::window);
    }
    if (found == checklist_ && !rows_->layout()->isEmpty()) {
        return;
    }
    checklist_ = std::move(found);
    showRows();
    if (checklist_.ready()) {
        timer_.stop();
        emit plotterReady(*checklist_.readyPort);
        QTimer::singleShot(kCloseDelayMs, this, &QWidget::close);
    }
}

void ConnectionCheckWindow::showRows() {
    QLayout* rows = rows_->layout();
    while (QLayoutItem* item = rows->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    for (const CheckRow& row : checklist_.rows) {
        QWidget* shown = makeRow(row, palette().color(QPalette::Window), rows_);
        rows->addWidget(shown);
        // At once, not when the layout would show it later, so that it counts for
        // the height.
        shown->show();
    }
    installRule_->setVisible(checklist_.permissionDenied);
    fitHeight();
}

// Wrapped lines make the height depend on the fixed width.
void ConnectionCheckWindow::fitHeight() {
    QLayout* column = layout();
    column->activate();
    setFixedHeight(column->hasHeightForWidth() ? column->totalHeightForWidth(kWidth)
                                               : column->totalSizeHint().height());
}

void ConnectionCheckWindow::recolour() {
    const QColor window = palette().color(QPalette::Window);
    Palettes::setColour(intro_, QPalette::WindowText, AppColors::secondaryText(window));
    Palettes::setColour(notice_, QPalette::WindowText, AppColors::problemText(window));
}

void ConnectionCheckWindow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        recolour();
        showRows();
    }
}

void ConnectionCheckWindow::installRule() {
    const bool started = launch_(rule_.program(), rule_.arguments());
    notice_->setText(started ? QString() : Texts::ruleInstallerNotStarted());
    notice_->setVisible(!started);
    fitHeight();
}

void ConnectionCheckWindow::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    refresh();
    if (!checklist_.ready()) {
        timer_.start();
    }
}

void ConnectionCheckWindow::hideEvent(QHideEvent* event) {
    timer_.stop();
    QWidget::hideEvent(event);
}
