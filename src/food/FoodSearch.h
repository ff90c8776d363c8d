#pragma once
// Finding foods by part of their name, as the search screen does on every keystroke: a
// case-insensitive substring match anywhere in the name (letter case only: no diacritic folding,
// no trimming of the query), hits in catalogue order, each standing for the first entry whose
// name is equal to the hit's. The names are folded and the first-entry table built once, when
// the index is made; a pass then folds only the query and scans one buffer.

#include <cstdint>
#include <memory>
#include <ranges>
#include <string>
#include <string_view>
#include <vector>

#include "store/Checked.h"

class FoodSearch {
public:
    explicit FoodSearch(const std::vector<std::string>& names);

    // The index of these names: the one made last if it was made from equal names, else a new
    // one. The catalogue is read once, so every search screen shares one index.
    static std::shared_ptr<const FoodSearch> of(const std::vector<std::string>& names);

    // One search pass. The empty query is the idle state: false, and hits keep what they hold.
    // Otherwise hits becomes, for every name containing query, the position of the first name
    // equal to it. With the developer log on, every name tested, and where each hit was found,
    // is logged.
    bool run(std::string_view query, std::vector<int32_t>& hits) const;

private:
    void runLogged(const std::string& needle, std::vector<int32_t>& hits) const;

    std::vector<std::string> names_;
    std::string folded_;               // every name case-folded, each followed by a NUL
    std::vector<size_t> starts_;       // where each name starts in folded_, then its size
    std::vector<int32_t> firstEqual_;  // the position of the first name equal to each
};

// One of the search screen's result lists: entry k is entry positions[k] of a catalogue list. It
// refers to the catalogue rather than copying from it, so a pass with thousands of hits stays
// cheap, and reads exactly as the copied texts would.
class ResultList {
public:
    ResultList(const std::vector<std::string>& catalogue, const std::vector<int32_t>& positions,
               const char* catalogueName)
        : catalogue_(catalogue), positions_(positions), name_(catalogueName) {}

    size_t size() const { return positions_.size(); }
    const std::string& at(int64_t k) const {
        return checkedAt(catalogue_, checkedAt(positions_, k, "the results"), name_);
    }
    // The entries in order, for as long as the catalogue and the positions live.
    auto items() const {
        return positions_ | std::views::transform([&list = catalogue_, name = name_](int32_t p) -> const std::string& {
                   return checkedAt(list, p, name);
               });
    }

private:
    const std::vector<std::string>& catalogue_;
    const std::vector<int32_t>& positions_;
    const char* name_;
};
