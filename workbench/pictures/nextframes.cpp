// SPDX-License-Identifier: GPL-3.0-or-later
#include "nextframes.h"

void NextFrames::Shown(int place, const Frame &frame, int count)
{
    const Path before = m_paths.value(place, { frame, 1 });
    Path path{ frame, 1 };
    if (before.frame.file == frame.file) {
        const bool isSame = before.frame.index == frame.index;
        path.step = isSame ? before.step : before.frame.index < frame.index ? 1 : -1;
    }
    m_paths.insert(place, path);
    const int next = frame.index + path.step;
    if (next >= 0 && next < count)
        m_guesses.insert(place, { frame.file, next });
    else
        m_guesses.remove(place);
}

NextFrames::Frame NextFrames::Take()
{
    const Frame guess = m_guesses.first();
    m_guesses.erase(m_guesses.begin());
    return guess;
}
