#pragma once

#include <QColor>
#include <QWidget>

/// A filled circle 10 px across that shows whether a device is connected.
class StatusDot : public QWidget {
    Q_OBJECT

  public:
    explicit StatusDot(QWidget* parent = nullptr);

    void setColor(const QColor& color);
    const QColor& color() const { return color_; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QColor color_;
};
