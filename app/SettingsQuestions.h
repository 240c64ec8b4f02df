#pragma once

#include <QString>
#include <functional>
#include <optional>

struct Outcome;

/// The owner's answers when Erase All Flash would also erase the machine's
/// settings. The window asks them in dialogs; an empty function gives the answer
/// named in its comment. Called on the GUI thread.
struct SettingsQuestions {
    enum class BeforeErase { saveAndRestore, eraseWithoutSaving, cancel };
    enum class AfterFailedRead { retry, eraseWithoutSaving, cancel };

    /// Before the update: save and restore them? (`saveAndRestore`)
    std::function<BeforeErase()> beforeErase;
    /// The firmware did not answer, nothing could be saved: erase anyway? (false)
    std::function<bool()> eraseAnyway;
    /// Reading them failed for the reason given, nothing was erased. (`cancel`)
    std::function<AfterFailedRead(const QString& reason)> afterFailedRead;
    /// The catalogue's release `chosen` is older than the firmware `running` on
    /// the machine, and nothing was written: install it anyway? (false)
    std::function<bool(const QString& chosen, const QString& running)> installOlder;

    /// A firmware write to run again after a question agreed to it.
    struct Rewrite {
        bool keepingSettings;  ///< Erase All Flash with Save and Restore, else a plain write
        bool allowOlder;       ///< an older catalogue release is installed anyway
    };
    /// After a write (`keepingSettings`: one that saves the settings first) stopped
    /// with nothing written: asks what its outcome calls for, and returns the write
    /// the answers ask for; none when nothing follows.
    std::optional<Rewrite> askAfter(const Outcome& outcome, bool keepingSettings) const;
};
