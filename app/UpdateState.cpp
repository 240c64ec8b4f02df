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
            return name + QStringLiteral("(%1)").arg(m_progress);
        case Kind::error:
            return name + QStringLiteral("(") + m_message + QStringLiteral(")");
        default:
            return name;
    }
}
