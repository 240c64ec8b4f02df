#include "app/UpdateState.h"

#include <QMetaEnum>

bool UpdateState::isBusy() const {
    switch (m_kind) {
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
    const QString name = QString::fromLatin1(QMetaEnum::fromType<Kind>().valueToKey(int(m_kind)));
    switch (m_kind) {
        case Kind::flashing:
        case Kind::uploadingConfig:
            // Nine digits tell every two floats apart, so a failing test shows the difference.
            return name + QStringLiteral("(%1)").arg(double(m_progress), 0, 'g', 9);
        case Kind::error:
            return name + QStringLiteral("(") + m_message + QStringLiteral(")");
        default:
            return name;
    }
}
