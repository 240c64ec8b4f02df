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
      title_(makeLabel(QStringLiteral("Corvane\nTeskal Firmware Updater"), 18, true, labelTint(1.0),
                       this)),
      version_(makeLabel(QStringLiteral("Firmware v") + BuildConfig::firmwareVersion() +
                             QStringLiteral(" (build ") + buildDate + QLatin1Char(')'),
                         12, false, labelTint(0.5), this)),
      information_(new QTextBrowser(this)),
      footer_(makeLabel(QStringLiteral("© 2026 Corvane. All rights reserved."), 10, false,
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
        icon_ = new QLabel(this);
        icon_->setPixmap(icon.scaled(64, 64, Qt::KeepAspectRatio, Qt::SmoothTransformation));
        icon_->setAlignment(Qt::AlignCenter);
        icon_->setGeometry(fromBottomLeft(178, top - 64, 64, 64));
        top -= 80;
    }
    title_->setGeometry(fromBottomLeft(20, top - 44, 380, 48));
    version_->setGeometry(fromBottomLeft(20, top - 72, 380, 18));
    information_->setGeometry(fromBottomLeft(30, 50, 360, top - 146));
    footer_->setGeometry(fromBottomLeft(20, 16, 380, 18));
}

void AboutWindow::fillInformation(const QList<ProductConfig>& products) {
    information_->setReadOnly(true);
    information_->setOpenExternalLinks(true);
    information_->setFrameShape(QFrame::NoFrame);
    QPalette clear = information_->palette();
    clear.setColor(QPalette::Base, Qt::transparent);
    information_->setPalette(clear);
    information_->viewport()->setAutoFillBackground(false);
    information_->document()->setDocumentMargin(0);

    // Links are long unbroken words; they move to a line of their own rather than
    // break inside.
    information_->setWordWrapMode(QTextOption::WordWrap);

    QFont font = information_->font();
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
    QTextCursor cursor(information_->document());
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
    information_->moveCursor(QTextCursor::Start);
}

EscapeCloser::EscapeCloser(QWidget* window, QObject* parent) : QObject(parent), window_(window) {}

bool EscapeCloser::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape && window_ &&
        QApplication::activeWindow() == window_) {
        window_->close();
        return true;
    }
    return QObject::eventFilter(watched, event);
}
