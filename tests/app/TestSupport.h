#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QTest>
#include <optional>

#include "app/UpdateState.h"

/// Lets QCOMPARE print states.
inline char* toString(const UpdateState& state) {
    return QTest::toString(state.toString());
}

inline void writeFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    QCOMPARE(file.write(bytes), bytes.size());
}
