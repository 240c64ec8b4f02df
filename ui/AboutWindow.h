#pragma once

#include <QList>
#include <QPixmap>
#include <QPointer>
#include <QString>
#include <QWidget>

#include "app/BuildConfig.h"

class QLabel;
class QTextBrowser;

/// The About window, 420 x 520, not resizable, with a title and a close button only.
/// Its content is built once by the constructor; closing it only hides it. GUI
/// thread only.
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

    QLabel* iconLabel() const { return m_icon; }
    QLabel* titleLabel() const { return m_title; }
    QLabel* versionLabel() const { return m_version; }
    QTextBrowser* information() const { return m_information; }
    QLabel* footerLabel() const { return m_footer; }

  private:
    void placeContent(const QPixmap& icon);
    void fillInformation(const QList<ProductConfig>& products);

    QLabel* m_icon = nullptr;
    QLabel* m_title;
    QLabel* m_version;
    QTextBrowser* m_information;
    QLabel* m_footer;
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
    QPointer<QWidget> m_window;
};
