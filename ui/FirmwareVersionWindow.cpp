#include "ui/FirmwareVersionWindow.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "app/Texts.h"
#include "app/catalogue/FirmwareVersion.h"
#include "ui/Fonts.h"
#include "ui/Layouts.h"

namespace {

bool ranOn(const QSet<QString>& ranHere, const QString& version) {
    for (const QString& ran : ranHere) {
        if (FirmwareVersion::compare(ran, version) == std::partial_ordering::equivalent) {
            return true;
        }
    }
    return false;
}

}  // namespace

FirmwareVersionWindow::FirmwareVersionWindow(QSet<QString> ranHere, std::optional<QString> chosen,
                                             QWidget* parent)
    : QWidget(parent, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                          Qt::WindowCloseButtonHint),
      ranHere_(std::move(ranHere)),
      chosen_(std::move(chosen)),
      summary_(new QLabel(this)),
      list_(new QTreeWidget(this)),
      beta_(new QCheckBox(Texts::showBetaVersions(), this)),
      use_(new QPushButton(Texts::useThisVersionButton(), this)),
      close_(new QPushButton(Texts::closeButton(), this)) {
    setWindowTitle(Texts::chooseVersionTitle());
    resize(640, 360);
    setMinimumSize(480, 280);
    buildLayout();
    connect(beta_, &QCheckBox::toggled, this, [this] { fill(); });
    connect(use_, &QPushButton::clicked, this, [this] {
        const int row = list_->indexOfTopLevelItem(list_->currentItem());
        if (row < 0) {
            return;
        }
        const FirmwareRelease release = shown_[row];
        close();
        emit versionChosen(release.source == FirmwareRelease::Source::catalogue
                               ? std::optional(release.version)
                               : std::nullopt);
    });
    connect(close_, &QPushButton::clicked, this, &QWidget::close);
    close_->setShortcut(QKeySequence(Qt::Key_Escape));
}

void FirmwareVersionWindow::buildLayout() {
    QVBoxLayout* column = Layouts::windowColumn(this, 12);
    summary_->setWordWrap(true);
    Layouts::addSummary(column, summary_);
    list_->setFont(Fonts::system(12));
    list_->setRootIsDecorated(false);
    list_->setWordWrap(true);
    list_->setHeaderLabels({Texts::versionColumn(), Texts::channelColumn(), Texts::dateColumn(),
                            Texts::notesColumn()});
    list_->header()->setStretchLastSection(true);
    column->addWidget(list_, 1);
    column->addWidget(beta_);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    for (QPushButton* button : {use_, close_}) {
        button->setFont(Fonts::system(13));
        buttons->addWidget(button);
    }
    use_->setDefault(true);
    column->addLayout(buttons);
}

void FirmwareVersionWindow::showReading() {
    summary_->setText(Texts::readingCatalogue());
}

void FirmwareVersionWindow::showListing(const Outcome& outcome, bool hasCatalogue) {
    const auto* listing = std::get_if<FirmwareListing>(&outcome.cause);
    all_ = listing ? listing->releases : QList<FirmwareRelease>();
    if (outcome.isFailure()) {
        summary_->setText(outcome.message);
    } else if (listing && listing->offlineSince) {
        summary_->setText(Texts::catalogueFromCache(*listing->offlineSince));
    } else {
        summary_->setText(hasCatalogue ? QString() : Texts::noCatalogueInWindow());
    }
    summary_->setVisible(!summary_->text().isEmpty());
    fill();
}

void FirmwareVersionWindow::fill() {
    list_->clear();
    shown_.clear();
    for (const FirmwareRelease& release : all_) {
        if (release.channel == FirmwareChannel::beta && !beta_->isChecked()) {
            continue;
        }
        const bool bundled = release.source == FirmwareRelease::Source::bundled;
        QString version = release.version;
        if (bundled || ranOn(ranHere_, release.version)) {
            version += QStringLiteral(" (%1)").arg(bundled ? Texts::bundledMark()
                                                           : Texts::ranOnThisMachine());
        }
        auto* item = new QTreeWidgetItem(
            {version,
             release.channel == FirmwareChannel::beta ? Texts::betaChannel()
                                                      : Texts::stableChannel(),
             release.date.isValid() ? QLocale().toString(release.date, QLocale::ShortFormat)
                                    : QString(),
             release.notes});
        list_->addTopLevelItem(item);
        shown_ << release;
        if (bundled ? !chosen_ : chosen_ == release.version) {
            list_->setCurrentItem(item);
        }
    }
    for (int column = 0; column < list_->columnCount() - 1; ++column) {
        list_->resizeColumnToContents(column);
    }
    if (list_->currentItem() == nullptr) {
        list_->setCurrentItem(list_->topLevelItem(0));
    }
}
