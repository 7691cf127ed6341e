#pragma once

#include <QString>

/// What became of one file.
struct ImportOutcome {
    enum class State { Imported, Skipped, Failed };

    QString path;
    State state = State::Skipped;
    /// Why, and what to do; of an imported one, what there is to know. Restricted rich text.
    QString text;
    /// The module that was to take it; empty for none.
    QString module;
};

/// The word for a state, in the user's language.
QString nameOf(ImportOutcome::State state);
