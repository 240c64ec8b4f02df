#include "ui/AboutWindow.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QTextBrowser>
#include <QTextCursor>

#include "ui/Colors.h"

namespace {

constexpr int kWidth = 420;
constexpr int kHeight = 520;

// The layout is given with the origin at the bottom-left corner; Qt's is top-left.
QRect fromBottomLeft(int x, int y, int width, int height) {
    return QRect(x, kHeight - y - height, width, height);
}

QColor labelTint(qreal alpha) {
    QColor color = QGuiApplication::palette().color(QPalette::WindowText);
    color.setAlphaF(alpha);
    return color;
}

QLabel* makeLabel(const QString& text, int pixelSize, bool bold, const QColor& color,
                  QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    QFont font = label->font();
    font.setPixelSize(pixelSize);
    font.setBold(bold);
    label->setFont(font);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, color);
    label->setPalette(palette);
    return label;
}

}  // namespace

AboutWindow::AboutWindow(const QList<ProductConfig>& products, const QString& buildDate,
                         const QPixmap& icon, QWidget* parent)
    : QWidget(parent, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                          Qt::WindowCloseButtonHint),
      m_title(makeLabel(QStringLiteral("Corvane\nTeskal Firmware Updater"), 18, true,
                        labelTint(1.0), this)),
      m_version(makeLabel(QStringLiteral("Firmware v") + BuildConfig::firmwareVersion() +
                              QStringLiteral(" (build ") + buildDate + QLatin1Char(')'),
                          12, false, labelTint(0.5), this)),
      m_information(new QTextBrowser(this)),
      m_footer(makeLabel(QStringLiteral("© 2026 Corvane. All rights reserved."), 10, false,
                         labelTint(0.26), this)) {
    setWindowTitle(QStringLiteral("About Teskal Firmware Updater"));
    setFixedSize(kWidth, kHeight);
    placeContent(icon);
    fillInformation(products);
}

QString AboutWindow::firmwareSourceUrl() {
    return QStringLiteral("https://github.com/corvane/teskal-firmware");
}

QString AboutWindow::stubSourceUrl() {
    return QStringLiteral("https://github.com/espressif/esptool");
}

void AboutWindow::placeContent(const QPixmap& icon) {
    int top = kHeight - 30;
    if (!icon.isNull()) {
        m_icon = new QLabel(this);
        m_icon->setPixmap(icon.scaled(64, 64, Qt::KeepAspectRatio, Qt::SmoothTransformation));
        m_icon->setAlignment(Qt::AlignCenter);
        m_icon->setGeometry(fromBottomLeft(178, top - 64, 64, 64));
        top -= 80;
    }
    m_title->setGeometry(fromBottomLeft(20, top - 44, 380, 48));
    m_version->setGeometry(fromBottomLeft(20, top - 72, 380, 18));
    m_information->setGeometry(fromBottomLeft(30, 50, 360, top - 146));
    m_footer->setGeometry(fromBottomLeft(20, 16, 380, 18));
}

void AboutWindow::fillInformation(const QList<ProductConfig>& products) {
    m_information->setReadOnly(true);
    m_information->setOpenExternalLinks(true);
    m_information->setFrameShape(QFrame::NoFrame);
    QPalette clear = m_information->palette();
    clear.setColor(QPalette::Base, Qt::transparent);
    m_information->setPalette(clear);
    m_information->viewport()->setAutoFillBackground(false);
    m_information->document()->setDocumentMargin(0);

    // Links are long unbroken words; they move to a line of their own rather than
    // break inside.
    m_information->setWordWrapMode(QTextOption::WordWrap);

    QFont font = m_information->font();
    font.setPixelSize(11);
    QTextCharFormat body;
    body.setFont(font);
    body.setForeground(labelTint(1.0));
    QTextCharFormat link = body;
    link.setForeground(CV::NS::deepBlue());
    link.setAnchor(true);

    QStringList names;
    for (const ProductConfig& product : products) {
        names.append(QStringLiteral("  ") + product.name);
    }
    QTextCursor cursor(m_information->document());
    const auto addLink = [&](const QString& address) {
        link.setAnchorHref(address);
        cursor.insertText(address, link);
    };
    cursor.insertText(QStringLiteral("Supported products:\n") + names.join(QLatin1Char('\n')) +
                          QStringLiteral("\n\n"),
                      body);
    cursor.insertText(QStringLiteral("Licenses:\n"), body);
    cursor.insertText(QStringLiteral("  Firmware: GPL v3 (based on FluidNC)\n"), body);
    cursor.insertText(QStringLiteral("  Source: "), body);
    addLink(firmwareSourceUrl());
    cursor.insertText(QStringLiteral("\n\n  Flash stub: Apache License 2.0\n"), body);
    cursor.insertText(QStringLiteral("  Source: "), body);
    addLink(stubSourceUrl());
    cursor.insertText(QStringLiteral("\n"), body);
    m_information->moveCursor(QTextCursor::Start);
}

EscapeCloser::EscapeCloser(QWidget* window, QObject* parent) : QObject(parent), m_window(window) {}

bool EscapeCloser::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape && m_window &&
        QApplication::activeWindow() == m_window) {
        m_window->close();
        return true;
    }
    return QObject::eventFilter(watched, event);
}
