// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "reader/bible_window.h"

namespace lumen {

class frm성서::FillHold
{
public:
    explicit FillHold(frm성서& window) : m_window(window) { ++m_window.m_fillHolds; }
    ~FillHold()
    {
        if (--m_window.m_fillHolds == 0 && m_window.m_fillWanted)
            m_window.FillBibleText();
    }
    FillHold(const FillHold&) = delete;
    FillHold& operator=(const FillHold&) = delete;

private:
    frm성서& m_window;
};

class frm성서::PlaceHold
{
public:
    explicit PlaceHold(frm성서& window) : m_window(window) { ++m_window.m_placeHolds; }
    ~PlaceHold()
    {
        if (--m_window.m_placeHolds == 0 && m_window.m_placeWanted)
            m_window.placeChanged();
    }
    PlaceHold(const PlaceHold&) = delete;
    PlaceHold& operator=(const PlaceHold&) = delete;

private:
    frm성서& m_window;
};

} // namespace lumen
