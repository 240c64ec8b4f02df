#include "app/BuildConfig.h"

namespace BuildConfig {

QString firmwareVersion() {
    return QStringLiteral("2.10.6");
}

QString programVersion() {
    return QStringLiteral(TFU_PROGRAM_VERSION);
}

const QList<ProductConfig>& products() {
    static const QList<ProductConfig> table{
        {"Corvane Plotvale Broadmere", "Plotvale3090.yaml"},
        {"Corvane Plotvale Broadmere (Rev D)", "Plotvale3090-KestonD.yaml"},
        {"Corvane Plotvale 3060", "Plotvale3060.yaml"},
        {"Corvane Plotvale 3060 (Rev D)", "Plotvale3060-KestonD.yaml"},
        {"Corvane Plotvale 2040", "Plotvale2040.yaml"},
        {"Corvane Plotvale 2040 (Rev D)", "Plotvale2040-KestonD.yaml"},
        {"Corvane Halcot", "Halcot.yaml"},
        {"Corvane Miravel", "mrv.yaml"},
    };
    return table;
}

}  // namespace BuildConfig
