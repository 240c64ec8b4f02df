#include "ui/ResultBanner.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QAction>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

#include "app/texts/AccessibilityTexts.h"
#include "app/texts/WindowTexts.h"
#include "ui/Colors.h"
#include "ui/Fonts.h"

namespace {

constexpr int kCornerRadius = 6;
constexpr int kEdgeWidth = 4;

QLabel* wrappedLabel(const QFont& font, QWidget* parent) {
    auto* label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setFont(font);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

std::pair<QColor, QColor> colours(ResultSummary::Tone tone, const QColor& window) {
    switch (tone) {
        case ResultSummary::Tone::good:
            return {BannerColors::goodField(window), BannerColors::goodEdge()};
        case ResultSummary::Tone::caution:
            return {BannerColors::cautionField(window), BannerColors::cautionEdge()};
        case ResultSummary::Tone::bad:
            break;
    }
    return {BannerColors::badField(window), BannerColors::badEdge()};
}

// A screen reader announces an alert when it appears, with its name (the
// headline) and description (the rest).
QAccessibleInterface* alertFactory(const QString& className, QObject* object) {
    if (className == QLatin1String(ResultBanner::staticMetaObject.className())) {
        return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::AlertMessage);
    }
    return nullptr;
}

}  // namespace

ResultBanner::ResultBanner(QWidget* parent)
    : QFrame(parent),
      headline_(wrappedLabel(Fonts::system(12, QFont::DemiBold), this)),
      details_(wrappedLabel(Fonts::monospace(10), this)),
      nextStep_(wrappedLabel(Fonts::system(11), this)),
      offers_(new QHBoxLayout),
      close_(new QToolButton(this)) {
    QAccessible::installFactory(alertFactory);
    auto* text = new QVBoxLayout;
    text->setSpacing(4);
    text->addWidget(headline_);
    text->addWidget(details_);
    text->addWidget(nextStep_);
    text->addLayout(offers_);
    offers_->addStretch(1);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(kEdgeWidth + 8, 6, 4, 6);
    row->addLayout(text, 1);
    row->addWidget(close_, 0, Qt::AlignTop);
    close_->setText(QStringLiteral("×"));
    close_->setAutoRaise(true);
    close_->setToolTip(Texts::closeTooltip());
    close_->setAccessibleName(Texts::dismiss());
    connect(close_, &QToolButton::clicked, this, &QWidget::hide);
    hide();
}

void ResultBanner::showSummary(const std::optional<ResultSummary>& summary,
                               const QList<QAction*>& offers) {
    summary_ = summary;
    clearOffers();
    if (!summary) {
        hide();
        return;
    }
    headline_->setText(summary->headline);
    details_->setText(summary->details.join(QLatin1Char('\n')));
    details_->setVisible(!summary->details.isEmpty());
    nextStep_->setText(summary->nextStep);
    nextStep_->setVisible(!summary->nextStep.isEmpty());
    setAccessibleName(summary->headline);
    setAccessibleDescription(
        (summary->details + QStringList(summary->nextStep)).join(QLatin1Char('\n')).trimmed());
    addOffers(offers);
    recolour();
    show();
    update();
}

// Offers come after the headline and before the close button for Tab as for the
// eye, though their buttons are made after it.
void ResultBanner::addOffers(const QList<QAction*>& offers) {
    QWidget* previous = close_->previousInFocusChain();
    for (QAction* offer : offers) {
        auto* button = new QPushButton(offer->text(), this);
        connect(button, &QPushButton::clicked, offer, &QAction::trigger);
        offers_->insertWidget(offers_->count() - 1, button);
        QWidget::setTabOrder(previous, button);
        previous = button;
    }
}

QColor ResultBanner::field() const {
    return colours(summary_ ? summary_->tone : ResultSummary::Tone::bad,
                   palette().color(QPalette::Window))
        .first;
}

// The close button draws no panel of its own, so its text stands on the field like
// the labels'; the offers' buttons keep the theme's.
void ResultBanner::recolour() {
    const QColor text = BannerColors::text(field());
    // A palette set here is a palette change of its own.
    if (palette().color(QPalette::WindowText) != text) {
        Palettes::setColour(this, QPalette::WindowText, text);
    }
    Palettes::setColour(close_, QPalette::ButtonText, text);
}

void ResultBanner::changeEvent(QEvent* event) {
    QFrame::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        recolour();
    }
}

void ResultBanner::clearOffers() {
    while (offers_->count() > 1) {
        QLayoutItem* item = offers_->takeAt(0);
        delete item->widget();
        delete item;
    }
}

void ResultBanner::paintEvent(QPaintEvent*) {
    if (!summary_) {
        return;
    }
    const auto [field, edge] = colours(summary_->tone, palette().color(QPalette::Window));
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath shape;
    shape.addRoundedRect(QRectF(rect()), kCornerRadius, kCornerRadius);
    painter.fillPath(shape, field);
    painter.setClipPath(shape);
    painter.fillRect(QRect(0, 0, kEdgeWidth, height()), edge);
}
