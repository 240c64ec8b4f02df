#include "app/UpdateState.h"

#include <QMetaEnum>

bool UpdateState::isBusy() const {
    switch (kind_) {
        case Kind::error:
        case Kind::idle:
        case Kind::ready:
        case Kind::flashComplete:
        case Kind::configComplete:
            return false;
        default:
            return true;
    }
}

QString UpdateState::toString() const {
    const QString name = QString::fromLatin1(QMetaEnum::fromType<Kind>().valueToKey(int(kind_)));
    switch (kind_) {
        case Kind::flashing:
        case Kind::uploadingConfig:
            // Nine digits tell every two floats apart, so a failing test shows the difference.
            return name + QStringLiteral("(%1)").arg(double(progress_), 0, 'g', 9);
        case Kind::error:
            return name + QStringLiteral("(") + message_ + QStringLiteral(")");
        default:
            return name;
    }
}
