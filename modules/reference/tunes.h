// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/result.h"

#include <QByteArray>
#include <QString>

#include <map>
#include <vector>

namespace lumen {

/// A note of a tune, or a rest.
struct TuneNote
{
    int pitch = 0; ///< as MIDI counts, 60 for middle C; 0 for a rest
    int ticks = 0; ///< kTicksPerQuarter for a quarter
};

inline constexpr int kTicksPerQuarter = 480;

/// A melody of one voice.
struct Tune
{
    int line = 0; ///< of its table where it begins
    int beats = 4;
    int beatUnit = 4;
    int quartersPerMinute = 100;
    std::vector<TuneNote> notes;
};

/// Tunes by the numbers of their hymns, out of a table. A line: number, metre ("3/4"), quarters a
/// minute, notes "G4:1.5" (C4 is middle C, "#" and "b" alter, "R" rests, the length is in quarters)
/// parted by blanks, bars by "|". "+" before a note goes on with the syllable of the former one,
/// and ties notes of one pitch. The lines of one number follow each other. Damaged when notes can't
/// be read or bars don't add up.
Result<std::map<int, Tune>> readTunes(const QString& file);

/// The tune as a standard MIDI file of format 0.
QByteArray midiFile(const Tune& tune);
/// Whether a MIDI file was made here.
bool isOwnMidiFile(const QByteArray& content);

} // namespace lumen
