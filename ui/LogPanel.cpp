#include "ui/LogPanel.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPainter>
#include <QPainterPath>
#include <QToolButton>

#include "app/texts/AccessibilityTexts.h"
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
constexpr int kFocusWidth = 2;

// Two overlapping pages, drawn here because no icon theme can be relied on.
QIcon copyIcon(int size, const QPalette& palette) {
    const qreal scale = 2.0;
    QPixmap pixmap(QSize(size, size) * scale);
    pixmap.setDevicePixelRatio(scale);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor field = palette.color(QPalette::Base);
    QPen pen(AppColors::secondaryText(field), size / 12.0);
    painter.setPen(pen);
    const qreal page = size * 0.62;
    const qreal corner = size / 10.0;
    painter.drawRoundedRect(QRectF(size - page - 1, 1, page, page), corner, corner);
    painter.setBrush(field);
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
    copyButton_->setIconSize(QSize(iconSize, iconSize));
    drawCopyIcon();
    copyButton_->setFixedSize(iconSize + 2 * kButtonPadding, iconSize + 2 * kButtonPadding);
    copyButton_->setToolTip(Texts::copyLogTooltip());
    copyButton_->setAccessibleName(Texts::copyLog());
    copyButton_->setCursor(Qt::PointingHandCursor);
    copyButton_->hide();
    connect(copyButton_, &QToolButton::clicked, this, &LogPanel::copyToClipboard);

    view_->installEventFilter(this);
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
    // The lines have no caret or selection to show that the keyboard is here, so
    // the field does; as the style's own focus frames, only after the keyboard
    // moved the focus.
    if (view_->hasFocus() && window()->testAttribute(Qt::WA_KeyboardFocusChange)) {
        const qreal inset = kFocusWidth / 2.0;
        painter.setPen(QPen(palette().color(QPalette::Highlight), kFocusWidth));
        painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset),
                                kCornerRadius - inset, kCornerRadius - inset);
    }
}

bool LogPanel::eventFilter(QObject* watched, QEvent* event) {
    if (watched == view_ &&
        (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)) {
        update();
    }
    return QWidget::eventFilter(watched, event);
}

void LogPanel::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        drawCopyIcon();
    }
}

void LogPanel::drawCopyIcon() {
    copyButton_->setIcon(copyIcon(copyButton_->iconSize().width(), palette()));
}

void LogPanel::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    placeCopyButton();
}

void LogPanel::placeCopyButton() {
    copyButton_->move(width() - copyButton_->width(), 0);
}
