#include "ui/StatusDot.h"

#include <QPainter>

StatusDot::StatusDot(QWidget* parent) : QWidget(parent) {
    setFixedSize(10, 10);
}

void StatusDot::setColor(const QColor& color) {
    color_ = color;
    update();
}

void StatusDot::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color_);
    painter.drawEllipse(QRectF(rect()));
}
