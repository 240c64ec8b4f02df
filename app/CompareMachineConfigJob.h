#pragma once

#include <QString>
#include <optional>

#include "app/ConfigDiff.h"
#include "app/JobSink.h"

/// Shows what uploading a configuration would change: downloads the machine's own
/// config.yaml and compares it with the chosen one.
///
/// A plain object: build it with its inputs, `run` it on a worker thread, then read
/// the comparison.
class CompareMachineConfigJob {
  public:
    /// `chosen`: the configuration an upload would write, with the name it is
    /// shown under (a product's name or a file name).
    CompareMachineConfigJob(QString port, ConfigText chosen);

    /// Downloads config.yaml and compares it, shown as "machine", with the chosen
    /// configuration. When the download worked, logs one line ("Machine config
    /// matches <name> by key", "Machine config differs from <name> in <n> key(s)",
    /// or each reason why a side could not be read) and returns nothing; otherwise
    /// returns the user message and logs nothing. Blocks the calling thread; one
    /// library job at a time.
    std::optional<QString> run(const JobSink& sink);

    /// The outcome of the last successful `run`; empty before.
    const ConfigComparison& comparison() const { return comparison_; }

  private:
    QString port_;
    ConfigText chosen_;
    ConfigComparison comparison_;
};
