#pragma once

#include <QList>
#include <QPixmap>
#include <QPointer>
#include <QString>
#include <QWidget>

#include "app/BuildConfig.h"

class QLabel;
class QPushButton;
class QTextBrowser;

/// The About window, 420 x 520, not resizable, with a title and a close button only:
/// the program's name, the bundled firmware's version, the program's own version,
/// the products and licences, and a Close button (Escape closes it too). Its content
/// is built once by the constructor; its colours follow the palette, light or dark.
/// Closing it only hides it. GUI thread only.
class AboutWindow : public QWidget {
    Q_OBJECT

  public:
    /// `icon` is shown 64 x 64 above the title; a null pixmap leaves it out and moves
    /// everything below up.
    AboutWindow(const QList<ProductConfig>& products, const QString& buildDate, const QPixmap& icon,
                QWidget* parent = nullptr);

    /// Address of the firmware's public source repository.
    static QString firmwareSourceUrl();
    /// Address of the flasher stub's public source repository.
    static QString stubSourceUrl();

    QLabel* iconLabel() const { return icon_; }
    QLabel* titleLabel() const { return title_; }
    QLabel* versionLabel() const { return version_; }
    QLabel* programVersionLabel() const { return programVersion_; }
    QTextBrowser* information() const { return information_; }
    QPushButton* closeButton() const { return close_; }
    QLabel* footerLabel() const { return footer_; }

  protected:
    void changeEvent(QEvent* event) override;

  private:
    void placeContent(const QPixmap& icon);
    void fillInformation(const QList<ProductConfig>& products);
    void recolour();

    QLabel* icon_ = nullptr;
    QLabel* title_;
    QLabel* version_;
    QLabel* programVersion_;
    QTextBrowser* information_;
    QPushButton* close_;
    QLabel* footer_;
};

/// Closes a window when Escape is pressed while it is the active window and
/// consumes that key press; every other event passes on. Installed on the
/// application; holds the window weakly.
class EscapeCloser : public QObject {
    Q_OBJECT

  public:
    explicit EscapeCloser(QWidget* window, QObject* parent = nullptr);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    QPointer<QWidget> window_;
};
