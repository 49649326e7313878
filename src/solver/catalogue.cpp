// The rows of the technique catalogue.
#include "solver/catalogue.h"

#include <cassert>

#include "model/levels.h"

namespace vemo {
namespace {

constexpr std::array<Slot, kSlots> kSlotRows = {{
    {"Bad Solved Cell", "Error indication"},           // 0
    {"Missing Candidate", "Error indication"},         // 1
    {"Solved Cell Exclusion", "Candidate"},            // 2
    {"Hidden Single", "Easy level"},                   // 3
    {"Naked Single", "Easy level"},                    // 4
    {"Pointing Pair/Triple", "Medium level"},          // 5
    {"Box-Line Reduction", "Medium level"},            // 6
    {"Naked/Hidden Subset", "Hard level"},             // 7
    {"X-Wing", "Crazy level"},                         // 8
    {"Swordfish", "Crazy level"},                      // 9
    {"Multi-value X-Wing", "Crazy level"},             // 10
    {"Empty Rectangle", "Crazy level"},                // 11
    {"XY-Wing", "Insane level"},                       // 12
    {"Two-String Kite", "Insane level"},               // 13
    {"Skyscraper", "Insane level"},                    // 14
    {"XYZ-Wing", "Insane level"},                      // 15
    {"Simple Colors", "Insane level"},                 // 16
    {"Jellyfish", "Kamikaze level"},                   // 17
    {"WXYZ-Wing", "Kamikaze level"},                   // 18
    {"Multi Colors", "Kamikaze level"},                // 19
    {"Finned X-Wing", "Kamikaze level"},               // 20
    {"3D Medusa", "Kamikaze level"},                   // 21
    {"Sue-de-Coq", "Kamikaze level"},                  // 22
    {"Aligned Pair Exclusion", "Kamikaze level"},      // 23
    {"Unique Rectangle", "Kamikaze level"},            // 24
    {"Avoidable Rectangle", "Kamikaze level"},         // 25
    {"Extended APE", "Kamikaze level"},                // 26
    {"Bivalue Universal Grave +1", "Kamikaze level"},  // 27
    {"Short Nice Loops", "Kamikaze level"},            // 28
    {"Short AIC's", "Extreme level"},                  // 29
    {"XY-Chain", "Extreme level"},                     // 30
    {"Aligned Triple Exclusion", "Extreme level"},     // 31
    {"Long Nice Loops", "Extreme level"},              // 32
    {"Medium AIC's", "Extreme level"},                 // 33
    {"ALS - XZ", "Mayhem level"},                      // 34
    {"MultiFish", ""},                                 // 35
    {"Forcing Chain", ""},                             // 36
    {"Extended ATE", "Mayhem level"},                  // 37
    {"Long AIC's", "Mayhem level"},                    // 38
    {"Bifurcation", ""},                               // 39
}};

// Kept: the level of a row counts for the rating, also where the slot's tooltip names another one
// (slots 29 and 34).
// clang-format off
constexpr Step kStepRows[] = {
    {3, HiddenSingle, {}, 1, {HintKind::HiddenSingle},
     "Scanning for Hidden Single - Please be patient", " - Scanning for Hidden Single", 10},
    {4, NakedSingle, {}, 1, {HintKind::NakedSingle},
     "Scanning for Naked Single - Please be patient", " - Scanning for Naked Single", 10},
    {5, PointingPair, {}, 2, {HintKind::PointingPair},
     "Scanning for Pointing Pair - Please be patient", " - Scanning for Pointing Pair", 15},
    {6, BoxLine, {}, 2, {HintKind::BoxLine},
     "Scanning for Box Line Reduction - Please be patient", " - Scanning for Box/Line Reduction", 15},
    {7, NakedHidden, {.naked = true, .size = 2}, 3, {HintKind::Subset},
     "Scanning for Naked Pair - Please be patient", " - Scanning for Naked Pair", 15},
    {7, NakedHidden, {.naked = true, .size = 3}, 3, {HintKind::Subset},
     "Scanning for Naked Triple - Please be patient", " - Scanning for Naked Triple", 20},
    {7, NakedHidden, {.naked = false, .size = 2}, 3, {HintKind::Subset},
     "Scanning for Hidden Pair - Please be patient", " - Scanning for Hidden Pair", 25},
    {7, NakedHidden, {.naked = true, .size = 4}, 3, {HintKind::Subset},
     "Scanning for Naked Quad - Please be patient", " - Scanning for Naked Quad", 30},
    {7, NakedHidden, {.naked = false, .size = 3}, 3, {HintKind::Subset},
     "Scanning for Hidden Triple - Please be patient", " - Scanning for Hidden Triple", 35},
    {7, NakedHidden, {.naked = true, .size = 5}, 3, {HintKind::Subset},
     "Scanning for Naked Quint - Please be patient", " - Scanning for Naked Quint", 40},
    {8, XWing, {}, 4, {HintKind::XWing},
     "Scanning for X-Wing - Please be patient", " - Scanning for X-Wing", 40},
    {9, SwordFish, {}, 4, {HintKind::Swordfish},
     "Scanning for Swordfish - Please be patient", " - Scanning for Swordfish", 45},
    {10, MultiXWing, {}, 4, {HintKind::MultiXWing},
     "Scanning for Multi-value X-Wing - Please be patient", " - Scanning for Multi-value X-Wing", 45},
    {11, EmptyRectangle, {}, 4, {HintKind::EmptyRectangle},
     "Scanning for Empty Rectangle - Please be patient", " - Scanning for Empty Rectangle", 50},
    {12, XYWing, {}, 5, {HintKind::XYWing},
     "Scanning for XY-Wing - Please be patient", " - Scanning for XY-Wing", 55},
    {13, TwoStringKite, {}, 5, {HintKind::TwoStringKite},
     "Scanning for Two-String Kite - Please be patient", " - Scanning for Two String Kite", 55},
    {14, Skyscraper, {}, 5, {HintKind::Skyscraper},
     "Scanning for Skyscraper - Please be patient", " - Scanning for Skyscraper", 55},
    {15, XYZWing, {}, 5, {HintKind::XYZWing},
     "Scanning for XYZ-Wing - Please be patient", " - Scanning for XYZ-Wing", 60},
    {16, SimpleColoring, {}, 5, {HintKind::ColorTrap, HintKind::ColorWrap},
     "Scanning for Simple Colors - Please be patient", " - Scanning for Simple-Colour", 65},
    {17, JellyFish, {}, 6, {HintKind::Jellyfish},
     "Scanning for Jellyfish - Please be patient", " - Scanning for Jellyfish", 70},
    {18, WXYZWing, {}, 6, {HintKind::WXYZWing},
     "Scanning for WXYZ-Wing - Please be patient", " - Scanning for WXYZ-Wing", 70},
    {19, MultiColor, {}, 6, {HintKind::MultiColor1, HintKind::MultiColor2},
     "Scanning for MultiColor - Please be patient", " - Scanning for Multi-Colour", 80},
    {20, FinnedXWing, {}, 6, {HintKind::FinnedXWing},
     "Scanning for Finned X-Wing - Please be patient", " - Scanning for Finned X-Wing", 80},
    {21, Medusa, {}, 6, {HintKind::Medusa},
     "Scanning for 3D Medusa - Please be patient", " - Scanning for 3D Medusa", 85},
    {22, SueDeCoq, {}, 6, {HintKind::SueDeCoq},
     "Scanning for Sue-De-Coq - Please be patient", " - Scanning for Sue-De-Coq", 85},
    {23, APE, {}, 6, {HintKind::PairExclusion},
     "Scanning for (Aligned) Pair Exclusion - Please be patient", " - Scanning for (Aligned) Pair Exclusion", 90},
    {24, UniqueRectangle, {}, 6, {HintKind::UniqueRectangle},
     "Scanning for Unique Rectangle - Please be patient", " - Scanning for Unique Rectangle", 90},
    {25, AvoidableRectangle, {}, 6, {HintKind::AvoidableRectangle},
     "Scanning for Avoidable Rectangle - Please be patient", " - Scanning for Avoidable Rectangle", 90},
    {26, ExtendedAPE, {}, 6, {HintKind::PairExclusion},
     "Scanning for Extended Aligned Pair Exclusion - Please be patient", " - Scanning for Extended Aligned Pair Exclusion", 95},
    {27, BUG, {}, 6, {HintKind::BivalueGrave},
     "Scanning for Bivalue Universal Grave - Please be patient", " - Scanning for Bivalue Universal Grave", 95},
    {28, NiceLoops, {.length = 10}, 6, {HintKind::NiceLoop},
     "Scanning for Nice Loops - Please be patient", " - Scanning for Nice Loop", 100},
    {29, AIC, {.length = 10}, 6, {HintKind::AlternatingChain},
     "Scanning for Alternating Inference Chains - Please be patient", " - Scanning for Alternating Inference Chains", 100},
    {30, XYChain, {}, 7, {HintKind::XYChain},
     "Scanning for XY-Chain - Please be patient", " - Scanning for XY-Chain", 105},
    {31, ATE, {}, 7, {HintKind::TripleExclusion},
     "Scanning for Aligned Triple Exclusion - Please be patient", " - Scanning for Aligned Triple Exclusion", 105},
    {32, NiceLoops, {.length = 20}, 7, {HintKind::NiceLoop},
     "Scanning for Nice Loops - Please be patient", " - Scanning for Nice Loop", 110},
    {33, AIC, {.length = 20}, 7, {HintKind::AlternatingChain},
     "Scanning for Alternating Inference Chains - Please be patient", " - Scanning for Alternating Inference Chains", 110},
    {34, ALSxz, {}, 7, {HintKind::BivalueAlsXz, HintKind::AlsXz},
     "Scanning for ALS-xz - Please be patient", " - Scanning for ALS-xz", 110},
    {35, MultiFish, {}, 7, {HintKind::MultiFish},
     "Scanning for MultiFish - Please be patient", " - Scanning for MultiFish", 115},
    {36, Forcing, {}, 7, {HintKind::ForcingFromCell, HintKind::ForcingFromUnit},
     "Scanning for Forcing Chain - Please be patient", " - Scanning for Forcing Chain", 115},
    {37, ExtendedATE, {}, 8, {HintKind::TripleExclusion},
     "Scanning for Extended Aligned Triple Exclusion - Please be patient", " - Scanning for Extended Aligned Triple Exclusion", 120},
    {38, AIC, {.length = 30}, 8, {HintKind::AlternatingChain},
     "Scanning for Alternating Inference Chains - Please be patient", " - Scanning for Alternating Inference Chains", 120},
    {39, nullptr, {}, 8, {HintKind::Bifurcation},
     "Scanning for Bifurcation - Please be patient", " - Scanning for Bifurcation", 120, Bifurcation},
};

constexpr Step kRowsOutsideTheLadder[] = {
    {kNoSlot, ExtendedWXYZWing, {}, 6, {HintKind::WXYZWing}, "", "", 0},
};
// clang-format on

// How a kind of hint is named, logged, explained and what its colours mean.
struct KindRow {
    HintKind kind;
    Sequence<std::string_view, 6> titles;  // one, or one a variant from 1 on
    TextWriter log;                        // null while no search makes this kind
    TextWriter hint;
    Sequence<ColorWords, 4> colors = {};  // as the titles; none for a pattern of one colour
};

// By number, from 1 on. No search makes kind 19: its title is reserved.
constexpr KindRow kKindRows[] = {
    {HintKind::NakedSingle, {"Naked single"}, NakedSingleLog, NakedSingleHint},
    {HintKind::HiddenSingle, {"Hidden single"}, HiddenSingleLog, HiddenSingleHint},
    {HintKind::PointingPair, {"Pointing Pair"}, PointingPairLog, PointingPairHint},
    {HintKind::BoxLine, {"Box Line Reduction"}, BoxLineLog, BoxLineHint},
    {HintKind::Subset,
     {"Naked Pair", "Naked Triple", "Naked Quad", "Naked Quint", "Hidden Pair", "Hidden Triple"},
     SubsetLog,
     SubsetHint},
    {HintKind::XWing, {"X-Wing"}, XWingLog, XWingHint},
    {HintKind::Swordfish, {"Swordfish"}, SwordFishLog, SwordFishHint},
    {HintKind::MultiXWing, {"Multi-value X-Wing"}, MultiXWingLog, MultiXWingHint},
    {HintKind::EmptyRectangle, {"Empty Rectangle"}, EmptyRectangleLog, EmptyRectangleHint},
    {HintKind::XYWing, {"XY-Wing"}, XYWingLog, XYWingHint},
    {HintKind::XYZWing, {"XYZ-Wing"}, XYZWingLog, XYZWingHint},
    {HintKind::ColorTrap,
     {"Simple Colors (Color Trap)"},
     ColorTrapLog,
     ColorTrapHint,
     {{"one color", "other color"}}},
    {HintKind::Jellyfish, {"Jellyfish"}, JellyFishLog, JellyFishHint},
    {HintKind::WXYZWing, {"WXYZ-Wing"}, WXYZWingLog, WXYZWingHint},
    {HintKind::FinnedXWing,
     {"Finned X-Wing"},
     FinnedXWingLog,
     FinnedXWingHint,
     {{"X-Wing", "fin"}}},
    {HintKind::PairExclusion,
     {"Aligned Pair Exclusion"},
     PairExclusionLog,
     PairExclusionHint,
     {{"aligned cells", "excluders"}}},
    {HintKind::TripleExclusion,
     {"Aligned Triple Exclusion"},
     TripleExclusionLog,
     TripleExclusionHint,
     {{"aligned cells", "excluders"}}},
    {HintKind::XYChain, {"XY-Chain"}, XYChainLog, XYChainHint},
    {HintKind::DoubleImplication, {"Double Implication Chain"}, nullptr, nullptr},
    {HintKind::Bifurcation, {"Bifurcation"}, BifurcationLog, BifurcationHint},
    {HintKind::ColorWrap,
     {"Simple Colors (Color Wrap)"},
     ColorWrapLog,
     ColorWrapHint,
     {{"true color", "true color"}}},
    {HintKind::MultiColor1,
     {"Multi Coloring Type 1"},
     MultiColor1Log,
     MultiColor1Hint,
     {{"at least one true", "not both true"}}},
    {HintKind::MultiColor2,
     {"Multi Coloring Type 2"},
     MultiColor2Log,
     MultiColor2Hint,
     {{"one color", "other color"}}},
    {HintKind::BivalueGrave, {"Bivalue Universal Grave"}, BUGLog, BUGHint},
    {HintKind::TwoStringKite, {"Two-String Kite"}, TwoStringKiteLog, TwoStringKiteHint},
    {HintKind::Skyscraper, {"Skyscraper"}, SkyscraperLog, SkyscraperHint},
    {HintKind::SueDeCoq, {"Sue-De-Coq"}, SueDeCoqLog, SueDeCoqHint, {{"crossing", "its partners"}}},
    {HintKind::NiceLoop,
     {"Nice Loop - Strong Discontinuity", "Nice Loop - Weak Discontinuity",
      "Nice Loop - Alternating X-Cycle"},
     NiceLoopLog,
     NiceLoopHint,
     {{"on", "off"}, {"on", "off"}, {"one way", "other way"}}},
    {HintKind::UniqueRectangle,
     {"Unique Rectangle Type 1", "Unique Rectangle Type 2", "Unique Rectangle Type 3",
      "Unique Rectangle Type 4", "Hidden Unique Rectangle"},
     UniqueRectangleLog,
     UniqueRectangleHint,
     {{"rectangle", "extra"},
      {"rectangle", "extra"},
      {"rectangle", "extra or locked"},
      {"rectangle", "extra"}}},
    {HintKind::AvoidableRectangle,
     {"Avoidable Rectangle"},
     AvoidableRectangleLog,
     AvoidableRectangleHint},
    {HintKind::AlternatingChain,
     {"AIC - Strong Discontinuity", "AIC - Weak Discontinuity", "AIC - Alternating Cycle"},
     AlternatingChainLog,
     AlternatingChainHint,
     {{"on", "off"}, {"on", "off"}, {"one way", "other way"}}},
    {HintKind::BivalueAlsXz,
     {"Bi-Value ALSxz"},
     ALSxzLog,
     ALSxzHint,
     {{"first set", "second set"}}},
    {HintKind::AlsXz, {"ALSxz"}, ALSxzLog, ALSxzHint, {{"first set", "second set"}}},
    {HintKind::Medusa, {"3D Medusa"}, MedusaLog, MedusaHint, {{"one color", "other color"}}},
    {HintKind::ForcingFromCell,
     {"Forcing Chain from Cell"},
     ForcingFromCellLog,
     ForcingFromCellHint,
     {{"start", "result"}}},
    {HintKind::ForcingFromUnit,
     {"Forcing Chain from Unit"},
     ForcingFromUnitLog,
     ForcingFromUnitHint,
     {{"start", "result"}}},
    {HintKind::MultiFish,
     {"MultiFish"},
     MultiFishLog,
     MultiFishHint,
     {{"one per row", "one per column"}}},
};

constexpr bool KindsAreInOrder() {
    int number = 0;
    for (const KindRow& row : kKindRows) {
        if (static_cast<int>(row.kind) != ++number) {
            return false;
        }
    }
    return number == kHintKinds;
}
static_assert(KindsAreInOrder(), "a kind's row is found by its number");

const KindRow& RowOf(HintKind kind) {
    assert(kind != HintKind::None && "a find has a kind");
    return kKindRows[static_cast<std::size_t>(kind) - 1];
}

// The item of a variant from 1 on; the last one for any other.
template <typename Item, std::size_t kCapacity>
const Item& OfVariant(const Sequence<Item, kCapacity>& items, int variant) {
    const std::size_t number = static_cast<std::size_t>(variant);
    const bool isListed = number >= 1 && number <= items.Size();
    return items[isListed ? number - 1 : items.Size() - 1];
}

}  // namespace

std::span<const Slot, kSlots> Slots() {
    return kSlotRows;
}

std::span<const Step> Steps() {
    return kStepRows;
}

std::span<const Step> StepsOutsideTheLadder() {
    return kRowsOutsideTheLadder;
}

std::span<const std::string_view> HintTitles(HintKind kind) {
    return {RowOf(kind).titles.begin(), RowOf(kind).titles.Size()};
}

std::string_view HintTitle(const Find& find) {
    return OfVariant(RowOf(find.kind).titles, find.variant);
}

ColorWords ColorWordsOf(const Find& find) {
    const Sequence<ColorWords, 4>& words = RowOf(find.kind).colors;
    return words.Empty() ? ColorWords() : OfVariant(words, find.variant);
}

std::string LogLine(const Find& find) {
    return RowOf(find.kind).log(find);
}

std::string HintText(const Find& find) {
    return RowOf(find.kind).hint(find);
}

std::string BatchStatusText(int reachedLevel, PuzzleOrigin origin) {
    const int level = reachedLevel == 0 ? 1 : reachedLevel;
    return std::string(origin == PuzzleOrigin::Imported ? "Solving Imported Sudoku : Rated "
                                                        : "Solving Sudoku : Rated ") +
           std::string(LevelName(level)) + " or higher";
}

std::string RatedText(int level) {
    return "Sudoku solved and rated as " + std::string(LevelName(level));
}

}  // namespace vemo
