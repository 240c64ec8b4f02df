#include "app/catalogue/CatalogueSource.h"

#include <QDir>
#include <QFileInfo>

#include "app/texts/CatalogueTexts.h"

namespace {

bool isWebScheme(const QString& scheme) {
    return scheme == QLatin1String("http") || scheme == QLatin1String("https");
}

}  // namespace

std::variant<CatalogueSource, CatalogueFailure> CatalogueSource::fromText(const QString& text) {
    const QString trimmed = text.trimmed();
    const QUrl url(trimmed, QUrl::StrictMode);
    const QString scheme = url.scheme().toLower();
    const auto unsupported = [&text] {
        return CatalogueFailure{CatalogueProblem::sourceUnsupported,
                                Texts::catalogueSourceUnsupported(text)};
    };
    if (isWebScheme(scheme)) {
        if (!url.isValid() || url.host().isEmpty()) {
            return unsupported();
        }
        return CatalogueSource(Kind::url, trimmed.endsWith(QLatin1Char('/'))
                                              ? url.resolved(QUrl(QLatin1String(kCatalogueName)))
                                              : url);
    }
    if (trimmed.isEmpty() || (url.isValid() && !url.isRelative() && !url.isLocalFile())) {
        return unsupported();
    }
    const QFileInfo local(url.isLocalFile() ? url.toLocalFile() : trimmed);
    if (local.isDir()) {
        return CatalogueSource(
            Kind::folder,
            QUrl::fromLocalFile(QDir(local.absoluteFilePath()).filePath(kCatalogueName)));
    }
    return CatalogueSource(Kind::file, QUrl::fromLocalFile(local.absoluteFilePath()));
}

std::optional<std::variant<CatalogueSource, CatalogueFailure>> CatalogueSource::configuredIn(
    const ResourceBundle& resources) {
    const auto bytes = resources.read(QLatin1String(kConfigFile), QString());
    const QString line =
        bytes ? QString::fromUtf8(*bytes).section(QLatin1Char('\n'), 0, 0).trimmed() : QString();
    if (line.isEmpty()) {
        return std::nullopt;
    }
    auto source = fromText(line);
    if (const auto* found = std::get_if<CatalogueSource>(&source);
        found && found->kind_ != Kind::url) {
        return CatalogueFailure{CatalogueProblem::sourceUnsupported,
                                Texts::catalogueSourceUnsupported(line)};
    }
    return source;
}

QUrl CatalogueSource::signatureUrl() const {
    QUrl signature = catalogue_;
    signature.setPath(catalogue_.path() + QLatin1String(kSignatureSuffix));
    return signature;
}

QString CatalogueSource::address() const {
    return displayAddress(catalogue_);
}

QString displayAddress(const QUrl& url) {
    return url.isLocalFile() ? QDir::toNativeSeparators(url.toLocalFile())
                             : url.toDisplayString(QUrl::RemovePassword);
}
