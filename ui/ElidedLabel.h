#pragma once

#include <QLabel>
#include <QString>

/// A one-line label that keeps to the width its layout gives it: a text too long
/// for it is cut at the right with "…", and then the whole text is its tooltip.
/// It asks for the whole text's width and accepts any width down to the ellipsis
/// alone. Its accessible name is the whole text, so that a screen reader reads it
/// all and is told of each change. GUI thread only.
class ElidedLabel : public QLabel {
    Q_OBJECT

  public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    /// Shows `text`, elided to the current width. Use this, not `setText`.
    void setFullText(const QString& text);
    const QString& fullText() const { return fullText_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void elide();
    QSize lineSize(const QString& text) const;

    QString fullText_;
};
