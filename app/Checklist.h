#pragma once

#include <QList>
#include <QString>
#include <optional>

/// One line of the connection checklist: a check's result and, for a problem,
/// what fixes it. A plain value.
struct CheckRow {
    enum class Mark {
        ok,       ///< the check passed
        problem,  ///< the check failed; `fix` says what to do
        info,     ///< something worth knowing that is no problem in itself
    };

    Mark mark = Mark::info;
    QString line;
    QString fix;  ///< empty when there is nothing to do

    static CheckRow passed(QString line) { return {Mark::ok, std::move(line), {}}; }
    static CheckRow failed(QString line, QString fix) {
        return {Mark::problem, std::move(line), std::move(fix)};
    }
    static CheckRow note(QString line) { return {Mark::info, std::move(line), {}}; }

    friend bool operator==(const CheckRow&, const CheckRow&) = default;
};

/// What the connection check found, top to bottom: whether a plotter is on USB,
/// has a serial port, may be opened and is free, then the other USB serial
/// devices, and a last "Ready" line when the plotter can be used. The checks
/// stop at the first problem. A plain value.
struct Checklist {
    QList<CheckRow> rows;
    /// The port of the plotter that can be used; none while a problem stands.
    std::optional<QString> readyPort;
    /// A problem is the permission to open the port, which the udev rule fixes.
    bool permissionDenied = false;

    bool ready() const { return readyPort.has_value(); }

    friend bool operator==(const Checklist&, const Checklist&) = default;
};
