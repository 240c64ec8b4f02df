#include "ui/ResultBanner.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

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

std::pair<QColor, QColor> colours(ResultSummary::Tone tone) {
    switch (tone) {
        case ResultSummary::Tone::good:
            return {BannerColors::goodField(), BannerColors::goodEdge()};
        case ResultSummary::Tone::caution:
            return {BannerColors::cautionField(), BannerColors::cautionEdge()};
        case ResultSummary::Tone::bad:
            break;
    }
    return {BannerColors::badField(), BannerColors::badEdge()};
}

}  // namespace

ResultBanner::ResultBanner(QWidget* parent)
    : QFrame(parent),
      headline_(wrappedLabel(Fonts::system(12, QFont::DemiBold), this)),
      details_(wrappedLabel(Fonts::monospace(10), this)),
      nextStep_(wrappedLabel(Fonts::system(11), this)),
      offers_(new QHBoxLayout),
      close_(new QToolButton(this)) {
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
    // The field is light in every theme, so its text is dark in every theme.
    QPalette dark = palette();
    dark.setColor(QPalette::WindowText, CV::darkGray());
    dark.setColor(QPalette::ButtonText, CV::darkGray());
    setPalette(dark);
    close_->setText(QStringLiteral("×"));
    close_->setAutoRaise(true);
    close_->setToolTip(Texts::closeButton());
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
    for (QAction* offer : offers) {
        auto* button = new QPushButton(offer->text(), this);
        connect(button, &QPushButton::clicked, offer, &QAction::trigger);
        offers_->insertWidget(offers_->count() - 1, button);
    }
    show();
    update();
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
    const auto [field, edge] = colours(summary_->tone);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath shape;
    shape.addRoundedRect(QRectF(rect()), kCornerRadius, kCornerRadius);
    painter.fillPath(shape, field);
    painter.setClipPath(shape);
    painter.fillRect(QRect(0, 0, kEdgeWidth, height()), edge);
}
