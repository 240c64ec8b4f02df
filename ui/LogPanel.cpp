#include "ui/LogPanel.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPainter>
#include <QPainterPath>
#include <QToolButton>

#include "app/texts/WindowTexts.h"
#include "ui/Colors.h"
#include "ui/Fonts.h"
#include "ui/LogView.h"

namespace {

constexpr int kPadding = 8;
// However tall a result banner grows, the log keeps this many lines in view.
constexpr int kMinimumLines = 8;
constexpr int kCopyRoom = 24;
constexpr int kCornerRadius = 6;
constexpr int kButtonPadding = 6;

// Two overlapping pages, drawn here because no icon theme can be relied on.
QIcon copyIcon(int size) {
    const qreal scale = 2.0;
    QPixmap pixmap(QSize(size, size) * scale);
    pixmap.setDevicePixelRatio(scale);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    QPen pen(AppColors::secondaryText(), size / 12.0);
    painter.setPen(pen);
    const qreal page = size * 0.62;
    const qreal corner = size / 10.0;
    painter.drawRoundedRect(QRectF(size - page - 1, 1, page, page), corner, corner);
    painter.setBrush(QGuiApplication::palette().color(QPalette::Base));
    painter.drawRoundedRect(QRectF(1, size - page - 1, page, page), corner, corner);
    return QIcon(pixmap);
}

}  // namespace

LogPanel::LogPanel(QWidget* parent)
    : QWidget(parent), view_(new LogView(this)), copyButton_(new QToolButton(this)) {
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(kPadding, kPadding, kPadding + kCopyRoom, kPadding);
    layout->addWidget(view_);
    setMinimumHeight(kMinimumLines * view_->lineHeight() + 2 * view_->frameWidth() + 2 * kPadding);

    const int iconSize = QFontMetrics(Fonts::system(12)).height();
    copyButton_->setAutoRaise(true);
    copyButton_->setIcon(copyIcon(iconSize));
    copyButton_->setIconSize(QSize(iconSize, iconSize));
    copyButton_->setFixedSize(iconSize + 2 * kButtonPadding, iconSize + 2 * kButtonPadding);
    copyButton_->setToolTip(Texts::copyLogTooltip());
    copyButton_->setCursor(Qt::PointingHandCursor);
    copyButton_->hide();
    connect(copyButton_, &QToolButton::clicked, this, &LogPanel::copyToClipboard);

    setContextMenuPolicy(Qt::ActionsContextMenu);
    addAction(Texts::copyItem(), this, &LogPanel::copyToClipboard);
}

void LogPanel::setEntries(const LogEntries& entries) {
    view_->setEntries(entries);
    if (entries.isEmpty() != copyButton_->isHidden()) {
        copyButton_->setVisible(!entries.isEmpty());
        copyButton_->raise();
    }
}

void LogPanel::copyToClipboard() {
    QClipboard* clipboard = QGuiApplication::clipboard();
    clipboard->clear();
    clipboard->setText(view_->lines().join(QLatin1Char('\n')));
}

void LogPanel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath field;
    field.addRoundedRect(QRectF(rect()), kCornerRadius, kCornerRadius);
    painter.fillPath(field, palette().color(QPalette::Base));
}

void LogPanel::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    placeCopyButton();
}

void LogPanel::placeCopyButton() {
    copyButton_->move(width() - copyButton_->width(), 0);
}
