#include "ui/AboutWindow.h"

#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextCursor>

#include "app/texts/WindowTexts.h"
#include "ui/Colors.h"
#include "ui/Contrast.h"

namespace {

constexpr int kWidth = 420;
constexpr int kHeight = 520;

// The layout is given with the origin at the bottom-left corner; Qt's is top-left.
QRect fromBottomLeft(int x, int y, int width, int height) {
    return QRect(x, kHeight - y - height, width, height);
}

// The secondary and tertiary label colours are the text colour let through at
// `alpha` over the window, which reads too faintly for small text; the nearest
// shade that reads well enough is used instead.
QColor labelTint(const QPalette& palette, qreal alpha) {
    const QColor text = palette.color(QPalette::WindowText);
    const QColor window = palette.color(QPalette::Window);
    const auto over = [alpha](qreal top, qreal below) { return top * alpha + below * (1 - alpha); };
    const QColor tint =
        QColor::fromRgbF(over(text.redF(), window.redF()), over(text.greenF(), window.greenF()),
                         over(text.blueF(), window.blueF()));
    return Contrast::readableOn(tint, window);
}

QLabel* makeLabel(const QString& text, int pixelSize, bool bold, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    QFont font = label->font();
    font.setPixelSize(pixelSize);
    font.setBold(bold);
    label->setFont(font);
    return label;
}

}  // namespace

AboutWindow::AboutWindow(const QList<ProductConfig>& products, const QString& buildDate,
                         const QPixmap& icon, QWidget* parent)
    : QWidget(parent, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                          Qt::WindowCloseButtonHint),
      title_(makeLabel(Texts::aboutHeading(), 18, true, this)),
      version_(makeLabel(Texts::firmwareVersionLabel(BuildConfig::firmwareVersion(), buildDate), 12,
                         false, this)),
      programVersion_(
          makeLabel(Texts::programVersionLabel(BuildConfig::programVersion()), 12, false, this)),
      information_(new QTextBrowser(this)),
      close_(new QPushButton(Texts::closeButton(), this)),
      footer_(makeLabel(Texts::copyright(), 10, false, this)) {
    setWindowTitle(Texts::aboutTitle());
    setFixedSize(kWidth, kHeight);
    placeContent(icon);
    fillInformation(products);
    recolour();
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
    QTextCharFormat link = body;
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

// The links' colour is their own, so it is set again for every palette. The text
// stands on the window, not on a text field.
void AboutWindow::recolour() {
    const QPalette& colours = palette();
    for (QLabel* label : {version_, programVersion_}) {
        Palettes::setColour(label, QPalette::WindowText, labelTint(colours, 0.5));
    }
    Palettes::setColour(footer_, QPalette::WindowText, labelTint(colours, 0.26));
    Palettes::setColour(information_, QPalette::Text, colours.color(QPalette::WindowText));
    QList<std::pair<int, int>> links;
    for (QTextBlock block = information_->document()->begin(); block.isValid();
         block = block.next()) {
        for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
            const QTextFragment fragment = piece.fragment();
            if (fragment.charFormat().isAnchor()) {
                links.append({fragment.position(), fragment.position() + fragment.length()});
            }
        }
    }
    QTextCharFormat link;
    link.setForeground(Contrast::readableOn(CV::NS::deepBlue(), colours.color(QPalette::Window)));
    QTextCursor cursor(information_->document());
    for (const auto& [start, end] : links) {
        cursor.setPosition(start);
        cursor.setPosition(end, QTextCursor::KeepAnchor);
        cursor.mergeCharFormat(link);
    }
}

void AboutWindow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) {
        recolour();
    }
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
