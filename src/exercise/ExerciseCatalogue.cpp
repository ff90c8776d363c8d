#include "exercise/ExerciseCatalogue.h"

#include <unicode/unistr.h>

#include "store/DevLog.h"

namespace exercise {

namespace {

struct Row {
    char section;
    const char* name;  // null for a per-hour text that belongs to no name
    const char* perHour;
};

// One line per per-hour text, in the order the lists take them.
constexpr Row kRows[] = {
    {'A', "Aerobics, low impact", "352"},
    {'A', "Aerobics, high impact", "493"},
    {'A', "Aerobics, step aerobics", "598"},
    {'A', "Aerobics, general", "457"},
    {'A', "Archery", "246"},
    {'B', "Ballet, twist, jazz, tap", "317"},
    {'B', "Ballroom dancing, slow", "211"},
    {'B', "Ballroom dancing, fast", "387"},
    {'B', "Badminton", "317"},
    {'B', "Basketball game, competitive", "563"},
    {'B', "Basketball, officiating", "493"},
    {'B', "Basketball, shooting baskets", "317"},
    {'B', "Basketball, wheelchair", "457"},
    {'B', "Billiards", "176"},
    {'B', "Bowling", "211"},
    {'B', "Boxing, in ring", "844"},
    {'B', "Boxing, punching bag", "422"},
    {'B', "Boxing, sparring", "633"},
    {'C', "Cleaning, dusting", "176"},
    {'C', "Cycling, mountain bike, bmx", "598"},
    {'C', "Cycling, <10 mph, leisure bicycling", "236"},
    {'C', "Cycling, >20 mph, racing", "372"},
    {'C', "Cycling, 10-11.9 mph, light", "1308"},
    {'C', "Cycling, 12-13.9 mph, moderate", "422"},
    {'C', "Cycling, 14-15.9 mph, vigorous", "472"},
    {'C', "Cycling, 16-19 mph, very fast, racing", "745"},
    {'C', nullptr, "817"},  // section C's two texts without a name
    {'C', nullptr, "844"},
    {'D', "Darts (wall or lawn)", "176"},
    {'D', "Diving, springboard or platform", "211"},
    {'D', "Downhill snow skiing, racing", "563"},
    {'F', "Fencing", "422"},
    {'F', "Football, competitive", "633"},
    {'F', "Football, touch, flag, general", "563"},
    {'F', "Football or baseball, playing catch", "176"},
    {'F', "Frisbee playing, general", "211"},
    {'F', "Frisbee, ultimate frisbee", "563"},
    {'G', "Golf, general", "317"},
    {'G', "Golf, walking and carrying clubs", "317"},
    {'G', "Golf, driving range", "211"},
    {'G', "Golf, miniature golf", "211"},
    {'G', "Golf, walking and pulling clubs", "303"},
    {'G', "Golf, using power cart", "246"},
    {'G', "Gymnastics", "281"},
    {'H', "Health club exercise", "387"},
    {'H', "Hacky sack", "281"},
    {'H', "Handball", "844"},
    {'H', "Handball, team", "563"},
    {'H', "Hockey, field hockey", "563"},
    {'H', "Hockey, ice hockey", "563"},
    {'H', "Horse Riding, general", "281"},
    {'H', "Horesback riding, saddling horse", "246"},
    {'H', "Horseback riding, grooming horse", "246"},
    {'H', "Horseback riding, trotting", "457"},
    {'H', "Horseback riding, walking", "176"},
    {'H', "Horse racing, galloping", "563"},
    {'H', "Horse grooming, moderate", "422"},
    {'H', "Horseshoe pitching", "211"},
    {'I', "Instructing aerobic class", "422"},
    {'I', "Ice skating, < 9 mph", "387"},
    {'I', "Ice skating, average speed", "493"},
    {'I', "Ice skating, rapidly", "633"},
    {'J', "Jazzercise", "422"},
    {'J', "Jai alai", "844"},
    {'J', "Juggling", "281"},
    {'J', "Jumping rope, fast", "844"},
    {'J', "Jumping rope, moderate", "704"},
    {'J', "Jumping rope, slow", "563"},
    {'K', "Krav maga training", "704"},
    {'K', "Kayaking", "352"},
    {'L', "Lacrosse", "563"},
    {'L', "Loading, unloading car", "211"},
    {'M', "Martial arts, judo, karate, jujitsu", "704"},
    {'M', "Martial arts, kick boxing", "704"},
    {'M', "Martial arts, tae kwan do", "704"},
    {'M', "Marching, rapidly, military", "457"},
    {'M', "Mild stretching", "176"},
    {'M', "Mowing lawn, walk, power mower", "387"},
    {'M', "Mowing lawn, riding mower", "176"},
    {'O', "Orienteering", "633"},
    {'P', "Paddleball, competitive", "704"},
    {'P', "Paddle boat", "281"},
    {'P', "Painting", "317"},
    {'P', "Polo", "563"},
    {'R', "Running, 6 mph (10 min mile)", "704"},
    {'R', "Running, general", "563"},
    {'R', "Running, 6 mph (10 min mile)", "704"},
    {'R', "Running, stairs, up", "1056"},
    {'R', "Racquetball, competitive", "704"},
    {'R', "Rock climbing, ascending rock", "774"},
    {'R', "Rock climbing, rappelling", "563"},
    {'R', "Rugby", "704"},
    {'R', "Roller skating", "493"},
    {'R', "Roller blading, in-line skating", "844"},
    {'R', "Riding, snow blower", "211"},
    {'S', "Sky diving", "211"},
    {'S', "Soccer, competitive", "704"},
    {'S', "Softball or baseball", "352"},
    {'S', "Squash", "844"},
    {'S', "Standing, playing with children, light", "197"},
    {'S', "Swimming laps, freestyle, fast", "704"},
    {'S', "Swimming backstroke", "493"},
    {'S', "Swimming butterfly", "774"},
    {'S', "Swimming sidestroke", "563"},
    {'S', "Speed skating, ice, competitive", "1056"},
    {'S', "Snow skiing, downhill skiing, light", "352"},
    {'S', "Snow shoeing", "563"},
    {'T', "Table tennis, ping pong", "281"},
    {'T', "Tai chi", "281"},
    {'T', "Tennis", "493"},
    {'T', "Trampoline", "281"},
    {'T', "Track and field (shot, discus)", "246"},
    {'T', "Teach physical education,exercise class", "281"},
    {'T', "Track and field (high jump, pole vault)", "281"},
    {'T', "Track and field (hurdles)", "281"},
    {'U', "Unicycling", "352"},
    {'V', "Volleyball, competitive", "563"},
    {'V', "Volleyball, beach", "563"},
    {'W', "Wallyball", "493"},
    {'W', "Walking using crutches", "352"},
    {'W', "Walking the dog", "211"},
    {'W', "Walking", "141"},
    {'W', "Water aerobics", "281"},
    {'W', "Water polo", "704"},
    {'W', "Water volleyball", "211"},
    {'W', "Water jogging", "563"},
    {'W', "Watering lawn or garden", "106"},
};

std::string folded(std::string_view text) {
    std::string out;
    icu::UnicodeString::fromUTF8(icu::StringPiece(text.data(), static_cast<int32_t>(text.size())))
        .foldCase()
        .toUTF8String(out);
    return out;
}

}  // namespace

ExerciseCatalogue::ExerciseCatalogue() {
    for (const Row& row : kRows) {
        if (sections_.empty() || sections_.back()[0] != row.section) {
            sections_.emplace_back(1, row.section);
            rows_.emplace_back();
            rows1_.emplace_back();
        }
        if (row.name) {
            rows_.back().emplace_back(row.name);
            exerciseArray_.emplace_back(row.name);
        }
        rows1_.back().emplace_back(row.perHour);
        calorieArray_.emplace_back(row.perHour);
    }
    folded_.reserve(exerciseArray_.size());
    firstIndex_.reserve(exerciseArray_.size());
    for (size_t i = 0; i < exerciseArray_.size(); ++i) {
        folded_.push_back(folded(exerciseArray_[i]));
        size_t first = 0;
        while (exerciseArray_[first] != exerciseArray_[i]) ++first;
        firstIndex_.push_back(first);
    }
}

void ExerciseCatalogue::search(std::string_view text, SearchResults& results) const {
    results.searchresult.clear();
    results.searchresultID.clear();
    results.searchCalorie.clear();
    if (text.empty()) return;
    const std::string needle = folded(text);
    for (size_t i = 0; i < exerciseArray_.size(); ++i) {
        const std::string& name = exerciseArray_[i];
        DEVLOG("%s", name.c_str());
        const size_t location = folded_[i].find(needle);
        if (location == std::string::npos) continue;
        const size_t first = firstIndex_[i];
        DEVLOG("-----location--------%lu", static_cast<unsigned long>(location));
        DEVLOG("====================%li", static_cast<long>(first));
        results.indexOfTheObject = static_cast<int64_t>(first);
        results.searchresult.push_back(name);
        results.searchresultID.push_back(exerciseArray_[first]);
        results.searchCalorie.push_back(calorieArray_[first]);
    }
}

}  // namespace exercise
