// SPDX-License-Identifier: GPL-2.0-or-later
#include "jet/store/byte_search.h"

#include <algorithm>
#include <bit>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace lumen {

namespace {

#ifdef __SSE2__

constexpr std::size_t kBlock = 16;

/// Compares first, middle and last byte of a text part at sixteen places at once. Two of them are
/// not enough: too many places begin and end like a common word.
class BlockProbe
{
public:
    explicit BlockProbe(std::string_view part)
        : m_middleAt(part.size() / 2), m_lastAt(part.size() - 1),
          m_first(_mm_set1_epi8(part.front())), m_middle(_mm_set1_epi8(part[m_middleAt])),
          m_last(_mm_set1_epi8(part.back()))
    {
    }

    /// A bit for each place where all three fit.
    unsigned candidates(const char* place) const
    {
        const __m128i outer = _mm_and_si128(_mm_cmpeq_epi8(load(place), m_first),
                                            _mm_cmpeq_epi8(load(place + m_lastAt), m_last));
        const __m128i middle = _mm_cmpeq_epi8(load(place + m_middleAt), m_middle);
        return static_cast<unsigned>(_mm_movemask_epi8(_mm_and_si128(outer, middle)));
    }

private:
    static __m128i load(const char* place)
    {
        return _mm_loadu_si128(reinterpret_cast<const __m128i*>(place));
    }

    std::size_t m_middleAt;
    std::size_t m_lastAt;
    __m128i m_first;
    __m128i m_middle;
    __m128i m_last;
};

/// For at least sixteen places from `from` on. The last block overlaps the one before it.
std::size_t findInBlocks(std::string_view text, std::string_view part, std::size_t from)
{
    const BlockProbe probe(part);
    const std::size_t lastBlock = text.size() - part.size() + 1 - kBlock;
    for (;;) {
        unsigned bits = probe.candidates(text.data() + from);
        for (; bits != 0; bits &= bits - 1) {
            const std::size_t at = from + static_cast<std::size_t>(std::countr_zero(bits));
            if (std::memcmp(text.data() + at, part.data(), part.size()) == 0)
                return at;
        }
        if (from == lastBlock)
            return std::string_view::npos;
        from = std::min(from + kBlock, lastBlock);
    }
}

#endif

} // namespace

std::size_t findBytes(std::string_view text, std::string_view part, std::size_t from)
{
    if (from > text.size() || part.size() > text.size() - from)
        return std::string_view::npos;
    if (part.empty())
        return from;
#ifdef __SSE2__
    if (text.size() - from - part.size() + 1 >= kBlock)
        return findInBlocks(text, part, from);
#endif
    return text.find(part, from);
}

} // namespace lumen
