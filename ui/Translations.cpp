#include "ui/Translations.h"

#include <QCoreApplication>
#include <QLibraryInfo>

Translations::Translations(const QLocale& locale) {
    // LANGUAGE lists further languages even when the messages' locale is C, where
    // the C library itself keeps to English; so does the window.
    if (locale.language() == QLocale::C || locale.language() == QLocale::English) {
        return;
    }
    const QString separator = QStringLiteral("_");
    if (qt_.load(locale, QStringLiteral("qtbase"), separator,
                 QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&qt_);
    }
    loaded_ = program_.load(locale, QStringLiteral("teskal-firmware-updater"), separator,
                            QStringLiteral(":/i18n"));
    if (loaded_) {
        QCoreApplication::installTranslator(&program_);
    }
}
