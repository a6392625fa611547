// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMap>

/// What is likely to be asked for next while stacks are browsed: the neighbour of the frame that is shown, in the
/// direction that led there. Forwards for a picture that has just come. Guesses by place; one thread.
class NextFrames
{
public:
    struct Frame
    {
        quint64 file = 0;
        int index = 0;
    };

    /// `place` shows a frame of a file with `count` frames. What was guessed for it before is forgotten.
    void Shown(int place, const Frame &frame, int count);
    bool IsEmpty() const { return m_guesses.isEmpty(); }
    /// Takes a guess out; there must be one.
    Frame Take();

private:
    struct Path
    {
        Frame frame;
        int step = 1; ///< 1 or -1
    };

    QMap<int, Path> m_paths; ///< by place
    QMap<int, Frame> m_guesses;
};
