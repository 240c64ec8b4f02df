#include "ui/ElidedLabel.h"

#include <QFontMetricsF>
#include <QtMath>

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setWordWrap(false);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

// A screen reader hears the whole text, and hears it again only when it changed:
// the name is what it reads, and a new name is announced.
void ElidedLabel::setFullText(const QString& text) {
    fullText_ = text;
    if (accessibleName() != text) {
        setAccessibleName(text);
    }
    updateGeometry();
    elide();
}

QSize ElidedLabel::sizeHint() const {
    return lineSize(fullText_);
}

QSize ElidedLabel::minimumSizeHint() const {
    return lineSize(QStringLiteral("\u2026"));
}

void ElidedLabel::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    elide();
}

void ElidedLabel::elide() {
    const QString shown =
        fontMetrics().elidedText(fullText_, Qt::ElideRight, contentsRect().width());
    setText(shown);
    setToolTip(shown == fullText_ ? QString() : fullText_);
}

// Rounded up: a width rounded down would make the whole text elide itself.
QSize ElidedLabel::lineSize(const QString& text) const {
    const int width = qCeil(QFontMetricsF(font()).horizontalAdvance(text));
    return QSize(width, fontMetrics().height()).grownBy(contentsMargins());
}
