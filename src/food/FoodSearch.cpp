#include "food/FoodSearch.h"

#include <unicode/uchar.h>
#include <unicode/utf16.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <cstring>
#include <unordered_map>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#include "store/DevLog.h"

namespace {

// Calls piece(folded bytes, UTF-16 length of the original character) for each character of
// text. The folding is ICU's simple case folding, one character for one, so a place in the
// folded text maps back to one in the name. Bytes that are not UTF-8 stand for themselves.
template <class Piece>
void foldEach(std::string_view text, Piece piece) {
    const auto* bytes = reinterpret_cast<const uint8_t*>(text.data());
    const auto length = static_cast<int32_t>(std::min<size_t>(text.size(), INT32_MAX));
    int32_t i = 0;
    while (i < length) {
        if (bytes[i] < 0x80) {
            const char c = static_cast<char>(bytes[i] >= 'A' && bytes[i] <= 'Z' ? bytes[i] + 32 : bytes[i]);
            piece(std::string_view(&c, 1), 1);
            ++i;
            continue;
        }
        const int32_t start = i;
        UChar32 c = 0;
        U8_NEXT(bytes, i, length, c);
        if (c < 0) {
            piece(text.substr(start, i - start), 1);
            continue;
        }
        uint8_t out[U8_MAX_LENGTH];
        int32_t size = 0;
        U8_APPEND_UNSAFE(out, size, u_foldCase(c, U_FOLD_CASE_DEFAULT));
        piece(std::string_view(reinterpret_cast<const char*>(out), size), U16_LENGTH(c));
    }
}

void appendFolded(std::string& out, std::string_view text) {
    foldEach(text, [&out](std::string_view piece, int) { out += piece; });
}

// The UTF-16 position in name of the character at foldedOffset of its folded text, as the
// developer log reports a hit's location.
unsigned long utf16Position(std::string_view name, size_t foldedOffset) {
    size_t folded = 0;
    unsigned long units = 0;
    foldEach(name, [&](std::string_view piece, int length) {
        if (folded >= foldedOffset) return;
        folded += piece.size();
        units += length;
    });
    return units;
}

// Where needle (not empty) first starts in [from, end), or end. A single byte is memchr's; a
// longer needle is looked for 16 places at a time by its first and last bytes together, and
// compared in full only where both are in place: several times faster than memmem on names.
const char* findIn(const char* from, const char* end, std::string_view needle) {
    const size_t n = needle.size();
    if (static_cast<size_t>(end - from) < n) return end;
    if (n == 1) {
        const void* at = std::memchr(from, needle[0], end - from);
        return at ? static_cast<const char*>(at) : end;
    }
    const char* const last = end - n;  // the last place needle can start
    const char* at = from;
#if defined(__SSE2__)
    const __m128i head = _mm_set1_epi8(needle.front());
    const __m128i tail = _mm_set1_epi8(needle.back());
    for (; last - at >= 15; at += 16) {
        const __m128i firsts = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
        const __m128i lasts = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at + n - 1));
        auto candidates = static_cast<unsigned>(
            _mm_movemask_epi8(_mm_and_si128(_mm_cmpeq_epi8(firsts, head), _mm_cmpeq_epi8(lasts, tail))));
        for (; candidates != 0; candidates &= candidates - 1) {
            const char* start = at + __builtin_ctz(candidates);
            if (std::memcmp(start + 1, needle.data() + 1, n - 2) == 0) return start;
        }
    }
#endif
    for (; at <= last; ++at)
        if (*at == needle[0] && std::memcmp(at, needle.data(), n) == 0) return at;
    return end;
}

}  // namespace

FoodSearch::FoodSearch(const std::vector<std::string>& names) : names_(names) {
    starts_.reserve(names_.size() + 1);
    firstEqual_.reserve(names_.size());
    folded_.reserve(names_.size() * 40);
    std::unordered_map<std::string_view, int32_t> first(names_.size());
    for (size_t i = 0; i < names_.size(); ++i) {
        starts_.push_back(folded_.size());
        appendFolded(folded_, names_[i]);
        folded_ += '\0';
        firstEqual_.push_back(first.try_emplace(names_[i], static_cast<int32_t>(i)).first->second);
    }
    starts_.push_back(folded_.size());
}

std::shared_ptr<const FoodSearch> FoodSearch::of(const std::vector<std::string>& names) {
    static std::shared_ptr<const FoodSearch> last;
    if (!last || last->names_ != names) last = std::make_shared<const FoodSearch>(names);
    return last;
}

bool FoodSearch::run(std::string_view query, std::vector<int32_t>& hits) const {
    if (query.empty()) return false;
    hits.clear();
    std::string needle;
    appendFolded(needle, query);
    // Names come from SQLite's text and hold no NUL, so a query with one finds nothing (and a hit
    // never runs from one name into the next).
    if (needle.find('\0') != std::string::npos) return true;
    if (devlog::enabled()) {
        runLogged(needle, hits);
        return true;
    }
    const char* const base = folded_.data();
    const char* const end = base + folded_.size();
    auto name = starts_.begin();
    for (const char* from = base; from < end;) {
        const char* at = findIn(from, end, needle);
        if (at == end) break;
        name = std::upper_bound(name, starts_.end(), static_cast<size_t>(at - base)) - 1;
        hits.push_back(firstEqual_[name - starts_.begin()]);
        from = base + *++name;  // a name is listed once, however often it holds the query
    }
    return true;
}

void FoodSearch::runLogged(const std::string& needle, std::vector<int32_t>& hits) const {
    for (size_t i = 0; i < names_.size(); ++i) {
        const std::string& str1 = names_[i];
        DEVLOG("%s", str1.c_str());
        const std::string_view folded(folded_.data() + starts_[i], starts_[i + 1] - starts_[i] - 1);
        const size_t at = folded.find(needle);
        if (at == std::string_view::npos) continue;
        DEVLOG("-----location--------%lu", utf16Position(str1, at));
        DEVLOG("====================%li", static_cast<long>(firstEqual_[i]));
        hits.push_back(firstEqual_[i]);
    }
}
