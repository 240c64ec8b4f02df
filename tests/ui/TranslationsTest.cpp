#include <QAccessible>
#include <QLabel>
#include <QRegularExpression>
#include <QSignalBlocker>

#include "UiTestSupport.h"
#include "ui/AppDelegate.h"
#include "ui/EraseQuestions.h"
#include "ui/QuitGuard.h"
#include "ui/RepairDialog.h"
#include "ui/RestoreWindow.h"
#include "ui/Translations.h"
#include "ui/UpdaterView.h"

namespace {

const char* const kLanguages[] = {"de", "fr", "es", "ja", "zh_CN"};

// The words the main window shows, in a fixed order: menu titles and items, then
// labels and buttons. Separators, and texts without a letter, are not words.
void collectMenu(const QList<QAction*>& actions, QStringList& out) {
    for (const QAction* item : actions) {
        if (!item->isSeparator()) {
            out.append(item->text());
        }
        if (item->menu() != nullptr) {
            collectMenu(item->menu()->actions(), out);
        }
    }
}

QStringList wordsOf(QMainWindow* window) {
    QStringList words;
    collectMenu(window->menuBar()->actions(), words);
    for (const QLabel* label : window->findChildren<QLabel*>()) {
        words.append(label->text());
    }
    for (const QAbstractButton* button : window->findChildren<QAbstractButton*>()) {
        words.append(button->text());
    }
    return words;
}

// The mnemonic a text marks, lower case; nothing when it marks none.
QChar mnemonicOf(const QString& text) {
    for (qsizetype i = 0; i + 1 < text.size(); ++i) {
        if (text[i] == QLatin1Char('&')) {
            if (text[i + 1] != QLatin1Char('&')) {
                return text[i + 1].toLower();
            }
            ++i;
        }
    }
    return {};
}

// Every text marks a mnemonic, no two the same; the screen reader hears no "&".
void expectDistinctMnemonics(const QString& where, const QList<QObject*>& controls) {
    QSet<QChar> taken;
    for (QObject* control : controls) {
        auto* action = qobject_cast<QAction*>(control);
        auto* button = qobject_cast<QAbstractButton*>(control);
        const QString text = action ? action->text() : button->text();
        const QChar key = mnemonicOf(text);
        QVERIFY2(!key.isNull(), qPrintable(where + ": no mnemonic in " + text));
        QVERIFY2(!taken.contains(key), qPrintable(where + ": " + text + " repeats &" + key));
        taken.insert(key);
        if (button != nullptr) {
            QAccessibleInterface* read = QAccessible::queryAccessibleInterface(button);
            QVERIFY2(!read->text(QAccessible::Name).contains(QLatin1Char('&')),
                     qPrintable(where + ": the screen reader hears " + text));
        }
    }
}

QList<QObject*> itemsOf(const QMenu* menu) {
    QList<QObject*> items;
    for (QAction* item : menu->actions()) {
        // Product names are the owner's own, and a menu without products offers
        // only a disabled note.
        if (!item->isSeparator() && item->isEnabled() && !item->data().isValid()) {
            items.append(item);
        }
    }
    return items;
}

template <typename Dialog>
QList<QObject*> buttonsOf(const Dialog& dialog) {
    QList<QObject*> buttons;
    for (QAbstractButton* button : dialog.template findChildren<QAbstractButton*>()) {
        if (!button->text().isEmpty()) {
            buttons.append(button);
        }
    }
    return buttons;
}

}  // namespace

// The window in each language: nine words in ten come from the translation, and
// menus and dialog buttons keep mnemonics of their own, in English too.
class TranslationsTest : public QObject {
    Q_OBJECT

  private slots:
    void initTestCase() { QLocale::setDefault(QLocale::c()); }
    void nineInTenOfTheWindowsWordsAreTranslated();
    void menusAndDialogButtonsHaveDistinctMnemonics_data();
    void menusAndDialogButtonsHaveDistinctMnemonics();

  private:
    std::unique_ptr<AppDelegate> launch() {
        AppDelegate::Options options;
        options.products = {{"Corvane Halcot", "Halcot.yaml"}};
        auto delegate = std::make_unique<AppDelegate>(
            std::make_unique<UpdateController>(ResourceBundle(resources_.path()), noDevice),
            std::move(options));
        delegate->applicationDidFinishLaunching();
        return delegate;
    }

    QTemporaryDir resources_;
};

void TranslationsTest::nineInTenOfTheWindowsWordsAreTranslated() {
    QStringList english = wordsOf(launch()->window());
    for (const char* language : kLanguages) {
        const Translations translations{QLocale(QString::fromLatin1(language))};
        QVERIFY2(translations.loaded(), language);
        const QStringList words = wordsOf(launch()->window());
        QCOMPARE(words.size(), english.size());
        int counted = 0;
        int translated = 0;
        for (qsizetype i = 0; i < words.size(); ++i) {
            // Product names and port paths stay as they are.
            if (english[i].contains(QLatin1String("Teskal")) ||
                english[i].contains(QLatin1String("Corvane")) ||
                !english[i].contains(QRegularExpression(QStringLiteral("[a-z]{2}")))) {
                continue;
            }
            ++counted;
            translated += words[i] != english[i] ? 1 : 0;
        }
        QVERIFY2(
            translated * 10 >= counted * 9,
            qPrintable(QStringLiteral("%1: %2 of %3").arg(language).arg(translated).arg(counted)));
    }
}

void TranslationsTest::menusAndDialogButtonsHaveDistinctMnemonics_data() {
    QTest::addColumn<QString>("language");
    QTest::newRow("en") << QString();
    for (const char* language : kLanguages) {
        QTest::newRow(language) << QString::fromLatin1(language);
    }
}

void TranslationsTest::menusAndDialogButtonsHaveDistinctMnemonics() {
    QFETCH(QString, language);
    const Translations translations{language.isEmpty() ? QLocale::c() : QLocale(language)};
    const auto delegate = launch();
    QMainWindow* window = delegate->window();
    const QSignalBlocker quiet(delegate->updateController().deviceMonitor());
    QList<QObject*> titles;
    for (QAction* title : window->menuBar()->actions()) {
        titles.append(title);
        expectDistinctMnemonics(title->text(), itemsOf(title->menu()));
        for (QAction* item : title->menu()->actions()) {
            if (item->menu() != nullptr && !itemsOf(item->menu()).isEmpty()) {
                expectDistinctMnemonics(item->text(), itemsOf(item->menu()));
            }
        }
    }
    expectDistinctMnemonics(QStringLiteral("menu bar"), titles);

    expectDistinctMnemonics(QStringLiteral("erase"), buttonsOf(*eraseQuestion(window)));
    expectDistinctMnemonics(QStringLiteral("erase anyway"),
                            buttonsOf(*eraseAnywayQuestion(window)));
    expectDistinctMnemonics(QStringLiteral("retry"), buttonsOf(*retryQuestion(window, "why")));
    expectDistinctMnemonics(QStringLiteral("quit"), buttonsOf(*quitDuringJobQuestion(window)));
    const RestoreWindow restore({}, QStringLiteral("3C8A1F20B4E2"), QStringLiteral("/backups"));
    expectDistinctMnemonics(QStringLiteral("restore"), buttonsOf(restore));
    const RepairDialog repair({}, QStringLiteral("3C8A1F20B4E2"), {}, QStringLiteral("2.10.6"));
    expectDistinctMnemonics(QStringLiteral("repair"), buttonsOf(repair));
}

QTEST_MAIN(TranslationsTest)
#include "TranslationsTest.moc"
