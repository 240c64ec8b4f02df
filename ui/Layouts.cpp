#include "ui/Layouts.h"

#include "ui/Fonts.h"

namespace Layouts {

QVBoxLayout* windowColumn(QWidget* window, int spacing) {
    auto* column = new QVBoxLayout(window);
    column->setContentsMargins(20, 20, 20, 20);
    column->setSpacing(spacing);
    return column;
}

void addSummary(QVBoxLayout* column, QLabel* summary) {
    summary->setTextFormat(Qt::PlainText);
    summary->setWordWrap(true);
    summary->setFont(Fonts::system(13));
    column->addWidget(summary);
}

}  // namespace Layouts
