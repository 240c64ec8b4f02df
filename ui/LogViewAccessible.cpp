#include "ui/LogViewAccessible.h"

#include <QAccessible>

#include "app/texts/AccessibilityTexts.h"
#include "ui/LogView.h"

namespace {

const QLatin1Char kNewline('\n');

QAccessibleInterface* logFactory(const QString& className, QObject* object) {
    if (className == QLatin1String(LogView::staticMetaObject.className())) {
        return new LogViewAccessible(static_cast<LogView*>(object));
    }
    return nullptr;
}

}  // namespace

LogViewAccessible::LogViewAccessible(LogView* view) : QAccessibleWidget(view) {}

void LogViewAccessible::install() {
    QAccessible::installFactory(logFactory);
}

void LogViewAccessible::reportAppended(LogView* view, qsizetype from) {
    if (!QAccessible::isActive() || from >= view->lines().size()) {
        return;
    }
    const QString text =
        (from > 0 ? QString(kNewline) : QString()) + view->lines().mid(from).join(kNewline);
    QAccessibleTextInsertEvent event(view, int(view->textLength() - text.size()), text);
    QAccessible::updateAccessibility(&event);
}

void LogViewAccessible::reportReplaced(LogView* view, const QStringList& before) {
    if (!QAccessible::isActive() || (before.isEmpty() && view->lines().isEmpty())) {
        return;
    }
    QAccessibleTextUpdateEvent event(view, 0, before.join(kNewline), view->lines().join(kNewline));
    QAccessible::updateAccessibility(&event);
}

const LogView* LogViewAccessible::view() const {
    return static_cast<const LogView*>(widget());
}

QAccessible::Role LogViewAccessible::role() const {
    return QAccessible::EditableText;
}

QAccessible::State LogViewAccessible::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    state.readOnly = true;
    state.multiLine = true;
    return state;
}

QString LogViewAccessible::text(QAccessible::Text kind) const {
    if (kind == QAccessible::Name && widget()->accessibleName().isEmpty()) {
        return Texts::logArea();
    }
    return QAccessibleWidget::text(kind);
}

// The viewport and the scroll bar's frame are parts of the text, not anonymous
// objects of their own.
int LogViewAccessible::childCount() const {
    return 0;
}

QAccessibleInterface* LogViewAccessible::child(int) const {
    return nullptr;
}

int LogViewAccessible::indexOfChild(const QAccessibleInterface*) const {
    return -1;
}

void* LogViewAccessible::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TextInterface) {
        return static_cast<QAccessibleTextInterface*>(this);
    }
    return QAccessibleWidget::interface_cast(type);
}

QString LogViewAccessible::text(int startOffset, int endOffset) const {
    return view()->lines().join(kNewline).mid(startOffset, endOffset - startOffset);
}

int LogViewAccessible::characterCount() const {
    return int(view()->textLength());
}

int LogViewAccessible::cursorPosition() const {
    const QStringList& lines = view()->lines();
    return lines.isEmpty() ? 0 : characterCount() - int(lines.last().size());
}

void LogViewAccessible::setCursorPosition(int) {}

void LogViewAccessible::selection(int, int* startOffset, int* endOffset) const {
    *startOffset = 0;
    *endOffset = 0;
}

int LogViewAccessible::selectionCount() const {
    return 0;
}

void LogViewAccessible::addSelection(int, int) {}

void LogViewAccessible::removeSelection(int) {}

void LogViewAccessible::setSelection(int, int, int) {}

QRect LogViewAccessible::characterRect(int) const {
    return QRect();
}

int LogViewAccessible::offsetAtPoint(const QPoint&) const {
    return -1;
}

void LogViewAccessible::scrollToSubstring(int, int) {}

QString LogViewAccessible::attributes(int offset, int* startOffset, int* endOffset) const {
    *startOffset = offset;
    *endOffset = offset;
    return QString();
}
