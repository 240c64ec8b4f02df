#include <QCryptographicHash>
#include <QDir>
#include <QTest>
#include <QtEndian>

#include "app/BuildConfig.h"
#include "app/ResourceBundle.h"
#include "app/UpdateController.h"

namespace {

const QByteArray kMarker("TESKAL DEVELOPMENT IMAGE - NOT FIRMWARE");

quint32 le32(const QByteArray& bytes, qsizetype offset) {
    return qFromLittleEndian<quint32>(bytes.constData() + offset);
}

QByteArray image(const QString& name) {
    return ResourceBundle(QStringLiteral(TFU_DEV_RESOURCES_DIR)).read(name, "bin").value_or("");
}

// Walks an ESP application image; returns the offset of its first segment's data,
// or -1 when the header, checksum or appended hash do not hold.
qsizetype checkEspImage(const QByteArray& bytes) {
    if (bytes.size() < 24 || quint8(bytes[0]) != 0xE9 || quint8(bytes[12]) != 9 || bytes[13] != 0 ||
        bytes[23] != 1) {
        return -1;
    }
    const int segments = quint8(bytes[1]);
    qsizetype offset = 24;
    quint8 checksum = 0xEF;
    for (int i = 0; i < segments; ++i) {
        const qsizetype length = le32(bytes, offset + 4);
        offset += 8;
        if (length % 4 != 0 || offset + length > bytes.size()) {
            return -1;
        }
        for (qsizetype j = 0; j < length; ++j) {
            checksum ^= quint8(bytes[offset + j]);
        }
        offset += length;
    }
    offset = (offset / 16) * 16 + 15;
    const QByteArray hashed = bytes.left(offset + 1);
    const bool valid =
        quint8(bytes[offset]) == checksum && bytes.size() == offset + 1 + 32 &&
        bytes.mid(offset + 1) == QCryptographicHash::hash(hashed, QCryptographicHash::Sha256);
    return valid ? 32 : -1;
}

}  // namespace

class DevSetTest : public QObject {
    Q_OBJECT

  private slots:
    void partitionTableHasApplicationAndDigest();
    void imagesAreValidAndMarked();
    void applicationDescribesTheDevelopmentSet();
    void stubHeaderFitsItsSegments();
    void configurationsCarryAVersion();
};

void DevSetTest::partitionTableHasApplicationAndDigest() {
    const QByteArray table = image("partitions");
    QCOMPARE(table.size(), 3072);
    qsizetype offset = 0;
    bool appAt0x10000 = false;
    while (quint8(table[offset]) == 0xAA) {
        QCOMPARE(quint8(table[offset + 1]), quint8(0x50));
        appAt0x10000 |= table[offset + 2] == 0 && le32(table, offset + 4) == 0x10000;
        offset += 32;
    }
    QVERIFY(appAt0x10000);
    QCOMPARE(quint8(table[offset]), quint8(0xEB));
    QCOMPARE(quint8(table[offset + 1]), quint8(0xEB));
    QCOMPARE(table.mid(offset + 16, 16),
             QCryptographicHash::hash(table.left(offset), QCryptographicHash::Md5));
    QCOMPARE(table.mid(offset + 32), QByteArray(3072 - offset - 32, char(0xFF)));
    QCOMPARE(image("boot_app0"), QByteArray(8192, char(0xFF)));
}

void DevSetTest::imagesAreValidAndMarked() {
    QVERIFY(checkEspImage(image("bootloader")) > 0);
    QVERIFY(checkEspImage(image("firmware")) > 0);
    for (const char* name : {"bootloader", "firmware", "esp32s3_stub"}) {
        const QByteArray bytes = image(name);
        QVERIFY2(bytes.contains(kMarker), name);
        QVERIFY2(!bytes.contains(BuildConfig::firmwareVersion().toLatin1()), name);
    }
    const qsizetype size = image("firmware").size();
    QVERIFY2(size > 1400 * 1024 && size < 1700 * 1024, qPrintable(QString::number(size)));
}

void DevSetTest::applicationDescribesTheDevelopmentSet() {
    const QByteArray firmware = image("firmware");
    QCOMPARE(le32(firmware, 32), 0xABCD5432u);
    QCOMPARE(QByteArray(firmware.constData() + 48), QByteArray("0.0.0-devset"));
    QCOMPARE(QByteArray(firmware.constData() + 80), QByteArray("teskal-devset"));
}

void DevSetTest::stubHeaderFitsItsSegments() {
    const QByteArray stub = image("esp32s3_stub");
    QVERIFY(stub.size() >= 20);
    const quint32 textAddr = le32(stub, 0);
    const quint32 textSize = le32(stub, 4);
    const quint32 dataAddr = le32(stub, 8);
    const quint32 dataSize = le32(stub, 12);
    const quint32 entry = le32(stub, 16);
    QCOMPARE(qsizetype(20 + textSize + dataSize), stub.size());
    QCOMPARE(textAddr, 0x40380000u);
    QCOMPARE(dataAddr, 0x3FC96000u);
    QVERIFY(textSize > 12 * 1024 && textSize < 20 * 1024);
    QVERIFY(entry >= textAddr && entry < textAddr + textSize);
}

void DevSetTest::configurationsCarryAVersion() {
    const ResourceBundle dev(QStringLiteral(TFU_DEV_RESOURCES_DIR));
    for (const auto& product : BuildConfig::products()) {
        const auto version =
            UpdateController::extractMetaVersion(dev.readConfig(product.configFile).value_or(""));
        QVERIFY2(version && version->endsWith("-devset"), qPrintable(product.configFile));
    }
}

QTEST_GUILESS_MAIN(DevSetTest)
#include "DevSetTest.moc"
