#include "ui/CompareWindow.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "ui/Fonts.h"

namespace {

QPlainTextEdit* makeTextView(const QString& text, QWidget* parent) {
    auto* view = new QPlainTextEdit(text, parent);
    view->setReadOnly(true);
    // Diff lines are read column by column; wrapping would break that.
    view->setLineWrapMode(QPlainTextEdit::NoWrap);
    view->setFont(Fonts::monospace(11));
    return view;
}

QString keyText(const ConfigComparison& comparison) {
    if (!comparison.errors.isEmpty()) {
        return comparison.errors.join(QLatin1Char('\n'));
    }
    if (comparison.keyDifferences.isEmpty()) {
        return QStringLiteral("No key differs.");
    }
    return comparison.keyDifferences.join(QLatin1Char('\n'));
}

QString lineText(const ConfigComparison& comparison) {
    return comparison.lineDiff.isEmpty() ? QStringLiteral("The files are the same line by line.")
                                         : comparison.lineDiff;
}

}  // namespace

CompareWindow::CompareWindow(const ConfigComparison& comparison, const QString& chosenLabel,
                             QWidget* parent)
    : QWidget(parent, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                          Qt::WindowCloseButtonHint),
      m_summary(new QLabel(summary(comparison, chosenLabel), this)),
      m_tabs(new QTabWidget(this)),
      m_keys(makeTextView(keyText(comparison), this)),
      m_lines(makeTextView(lineText(comparison), this)),
      m_upload(new QPushButton(QStringLiteral("Upload This Configuration"), this)),
      m_close(new QPushButton(QStringLiteral("Close"), this)) {
    setWindowTitle(QStringLiteral("Compare With Machine \u2014 ") + chosenLabel);
    resize(560, 440);
    setMinimumSize(480, 320);
    buildLayout();
    connect(m_upload, &QPushButton::clicked, this, [this] {
        close();
        emit uploadRequested();
    });
    connect(m_close, &QPushButton::clicked, this, &QWidget::close);
    m_close->setShortcut(QKeySequence(Qt::Key_Escape));
    m_close->setDefault(true);
}

QString CompareWindow::summary(const ConfigComparison& comparison, const QString& chosenLabel) {
    if (!comparison.errors.isEmpty()) {
        return QStringLiteral(
            "The two configurations could not be compared by key; "
            "\"By Line\" shows how their texts differ.");
    }
    const qsizetype count = comparison.keyDifferences.size();
    if (count == 0) {
        return QStringLiteral(
                   "The machine's config matches %1 by key: an upload would change "
                   "no setting.")
            .arg(chosenLabel);
    }
    return QStringLiteral(
               "%1 %2 between the machine's config and %3. Each line shows the "
               "machine's value \u2192 the new one; + marks a key only in %3, - a "
               "key only on the machine.")
        .arg(count)
        .arg(count == 1 ? QStringLiteral("setting differs") : QStringLiteral("settings differ"))
        .arg(chosenLabel);
}

void CompareWindow::buildLayout() {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(20, 20, 20, 20);
    column->setSpacing(12);

    m_summary->setTextFormat(Qt::PlainText);
    m_summary->setWordWrap(true);
    m_summary->setFont(Fonts::system(13));
    column->addWidget(m_summary);

    m_tabs->setFont(Fonts::system(12));
    m_tabs->addTab(m_keys, QStringLiteral("By Key"));
    m_tabs->addTab(m_lines, QStringLiteral("By Line"));
    column->addWidget(m_tabs, 1);

    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    for (QPushButton* button : {m_upload, m_close}) {
        button->setFont(Fonts::system(13));
        buttons->addWidget(button);
    }
    column->addLayout(buttons);
}
