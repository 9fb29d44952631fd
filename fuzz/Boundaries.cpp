#include "values/TextBoundaries.h"

#include <vector>

#include "fuzz/Fuzz.h"
#include "values/Text.h"

namespace kel::fuzz {
namespace {

using Step = std::size_t (*)(std::u16string_view, std::size_t, bool);
using Stops = std::vector<std::size_t>;

struct Walk {
    Step next;
    Step previous;
    const char* what;
};

/// Walking to and fro comes by the same stops, and so does a step from between two of them.
Stops check(std::u16string_view text, bool multiLine, const Walk& walk) {
    Stops stops{0};
    while (stops.back() < text.size()) {
        const std::size_t next = walk.next(text, stops.back(), multiLine);
        require(next > stops.back() && next <= text.size(), walk.what, {u"grows", text});
        require(!splitsPair(text, next), walk.what, {u"cuts no pair", text});
        stops.push_back(next);
    }
    std::size_t back = text.size();
    for (auto stop = stops.rbegin(); stop != stops.rend(); ++stop) {
        require(back == *stop, walk.what, {u"back as forward", text});
        back = walk.previous(text, back, multiLine);
    }
    require(back == 0 && walk.next(text, text.size(), multiLine) == text.size(), walk.what, {u"ends", text});
    return stops;
}

void checkBetween(std::u16string_view text, bool multiLine, const Stops& stops) {
    std::size_t before = 0;
    for (std::size_t at = 0; at + 1 < stops.size(); ++at) {
        require(characterEnd(text, stops[at], multiLine) == stops[at + 1], "a character ends where the next one starts",
                {text});
        for (std::size_t inside = before + 1; inside < stops[at + 1]; ++inside) {
            require(nextCharacter(text, inside, multiLine) == stops[at + 1] &&
                        previousCharacter(text, inside, multiLine) == stops[at],
                    "a caret inside a character comes out at its ends", {text});
        }
        before = stops[at + 1];
    }
}

void checkPlaces(std::u16string_view text, bool multiLine) {
    for (std::size_t place = 0; place <= text.size(); ++place) {
        const std::size_t snapped = snapDown(text, place, multiLine);
        require(snapped <= place && !splitsPair(text, snapped) && snapDown(text, snapped, multiLine) == snapped,
                "a caret is put where one can stand", {text});
        const std::size_t start = lineStart(text, snapped, multiLine), end = lineEnd(text, snapped, multiLine);
        require(start <= snapped && snapped <= end && lineStart(text, end, multiLine) == start &&
                    lineEnd(text, start, multiLine) == end,
                "a place is in one line", {text});
    }
}

}  // namespace
}  // namespace kel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace kel::fuzz;
    const std::u16string text = Lines(data, size).rest();
    for (const bool multiLine : {false, true}) {
        const Stops characters = check(text, multiLine, {kel::nextCharacter, kel::previousCharacter, "characters"});
        check(text, multiLine, {kel::nextCodePoint, kel::previousCodePoint, "code points"});
        check(text, multiLine, {kel::nextWord, kel::previousWord, "words"});
        // Each of these places may look far around itself.
        constexpr std::size_t LongestLookedAt = 400;
        if (text.size() > LongestLookedAt) continue;
        checkBetween(text, multiLine, characters);
        checkPlaces(text, multiLine);
    }
    return 0;
}
