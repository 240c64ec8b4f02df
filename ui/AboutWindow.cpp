#include "ui/AboutWindow.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTextBrowser>
#include <QTextCursor>

#include "app/texts/WindowTexts.h"
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
      title_(makeLabel(Texts::aboutHeading(), 18, true, labelTint(1.0), this)),
      version_(makeLabel(Texts::firmwareVersionLabel(BuildConfig::firmwareVersion(), buildDate), 12,
                         false, labelTint(0.5), this)),
      programVersion_(makeLabel(Texts::programVersionLabel(BuildConfig::programVersion()), 12,
                                false, labelTint(0.5), this)),
      information_(new QTextBrowser(this)),
      close_(new QPushButton(Texts::closeButton(), this)),
      footer_(makeLabel(Texts::copyright(), 10, false, labelTint(0.26), this)) {
    setWindowTitle(Texts::aboutItem());
    setFixedSize(kWidth, kHeight);
    placeContent(icon);
    fillInformation(products);
    close_->setDefault(true);
    connect(close_, &QPushButton::clicked, this, &QWidget::close);
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
    // The program's version under the firmware's, taking its line from the
    // information text; the Close button beside the footer.
    programVersion_->setGeometry(fromBottomLeft(20, top - 92, 380, 18));
    information_->setGeometry(fromBottomLeft(30, 50, 360, top - 166));
    close_->setGeometry(fromBottomLeft(kWidth - 100, 12, 80, 28));
    footer_->setGeometry(fromBottomLeft(20, 16, kWidth - 130, 18));
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
    const QString source = QStringLiteral("  ") + Texts::source() + QLatin1Char(' ');
    cursor.insertText(Texts::supportedProducts() + QLatin1Char('\n') +
                          names.join(QLatin1Char('\n')) + QStringLiteral("\n\n"),
                      body);
    cursor.insertText(Texts::licenses() + QLatin1Char('\n'), body);
    cursor.insertText(QStringLiteral("  ") + Texts::firmwareLicense() + QLatin1Char('\n'), body);
    cursor.insertText(source, body);
    addLink(firmwareSourceUrl());
    cursor.insertText(QStringLiteral("\n\n  ") + Texts::stubLicense() + QLatin1Char('\n'), body);
    cursor.insertText(source, body);
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
