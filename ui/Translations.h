#pragma once

#include <QLocale>
#include <QTranslator>

/// The window's texts in one language: the program's own translation (embedded as
/// :/i18n/teskal-firmware-updater_LANG.qm) and Qt's for its standard dialogs, from
/// Qt's translations folder. Installed into the running application for as long as
/// this object lives; texts are looked up when a widget is built, so build the
/// windows after it. Under a C or English locale nothing is installed, and every
/// text stays the catalogue's source text. GUI thread, after the QApplication.
/// teskal-flash never makes one: scripts and support read its English.
class Translations {
  public:
    explicit Translations(const QLocale& locale);

    Translations(const Translations&) = delete;
    Translations& operator=(const Translations&) = delete;

    /// Whether the program's own translation for the locale was found.
    bool loaded() const { return loaded_; }

  private:
    QTranslator qt_;
    QTranslator program_;
    bool loaded_ = false;
};
