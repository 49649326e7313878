// The kinds of hint; the searches of the ladder, family by family, and the texts of their finds.
//
// A search offers its finds in its scan order and stops when the sink has enough. A find always
// changes something; its texts are written from the find alone.
#pragma once

#include <cstdint>
#include <string>

#include "solver/find.h"
#include "solver/position.h"

namespace vemo {

// The kinds of hint; the numbers are those of the table of titles.
enum class HintKind : std::uint8_t {
    None = 0,
    NakedSingle = 1,
    HiddenSingle,
    PointingPair,
    BoxLine,
    Subset,
    XWing,
    Swordfish,
    MultiXWing,
    EmptyRectangle,
    XYWing,
    XYZWing,
    ColorTrap,
    Jellyfish,
    WXYZWing,
    FinnedXWing,
    PairExclusion,
    TripleExclusion,
    XYChain,
    DoubleImplication,
    Bifurcation,
    ColorWrap,
    MultiColor1,
    MultiColor2,
    BivalueGrave,
    TwoStringKite,
    Skyscraper,
    SueDeCoq,
    NiceLoop,
    UniqueRectangle,
    AvoidableRectangle,
    AlternatingChain,
    BivalueAlsXz,
    AlsXz,
    Medusa,
    ForcingFromCell,
    ForcingFromUnit,
    MultiFish,
};
inline constexpr int kHintKinds = static_cast<int>(HintKind::MultiFish);

// What a row of the ladder passes to its search; a search reads the fields that it knows.
struct Args {
    bool naked = false;  // naked or hidden subset
    int size = 0;        // digits of a subset
    int length = 0;      // the longest chain allowed, in links
};

class Solver;

using Search = void (*)(const Position& position, const Args& args, FindSink& sink);
// The one step that is no pure search: it tries candidates out on copies of the solver's state.
using Trial = void (*)(Solver& solver, FindSink& sink);
using TextWriter = std::string (*)(const Find& find);

// singles
void HiddenSingle(const Position& position, const Args& args, FindSink& sink);
void NakedSingle(const Position& position, const Args& args, FindSink& sink);
std::string HiddenSingleLog(const Find& find);
std::string HiddenSingleHint(const Find& find);
std::string NakedSingleLog(const Find& find);
std::string NakedSingleHint(const Find& find);

// intersections
void PointingPair(const Position& position, const Args& args, FindSink& sink);
void BoxLine(const Position& position, const Args& args, FindSink& sink);
std::string PointingPairLog(const Find& find);
std::string PointingPairHint(const Find& find);
std::string BoxLineLog(const Find& find);
std::string BoxLineHint(const Find& find);

// subsets
void NakedHidden(const Position& position, const Args& args, FindSink& sink);
std::string SubsetLog(const Find& find);
std::string SubsetHint(const Find& find);

// fish
void XWing(const Position& position, const Args& args, FindSink& sink);
std::string XWingLog(const Find& find);
std::string XWingHint(const Find& find);
void SwordFish(const Position& position, const Args& args, FindSink& sink);
void JellyFish(const Position& position, const Args& args, FindSink& sink);
std::string SwordFishLog(const Find& find);
std::string SwordFishHint(const Find& find);
std::string JellyFishLog(const Find& find);
std::string JellyFishHint(const Find& find);

// finned fish
void FinnedXWing(const Position& position, const Args& args, FindSink& sink);
std::string FinnedXWingLog(const Find& find);
std::string FinnedXWingHint(const Find& find);

// patterns of a single digit
void EmptyRectangle(const Position& position, const Args& args, FindSink& sink);
void TwoStringKite(const Position& position, const Args& args, FindSink& sink);
void Skyscraper(const Position& position, const Args& args, FindSink& sink);
std::string EmptyRectangleLog(const Find& find);
std::string EmptyRectangleHint(const Find& find);
std::string TwoStringKiteLog(const Find& find);
std::string TwoStringKiteHint(const Find& find);
std::string SkyscraperLog(const Find& find);
std::string SkyscraperHint(const Find& find);

// colorings of a single digit
void SimpleColoring(const Position& position, const Args& args, FindSink& sink);
void MultiColor(const Position& position, const Args& args, FindSink& sink);
std::string ColorTrapLog(const Find& find);
std::string ColorTrapHint(const Find& find);
std::string ColorWrapLog(const Find& find);
std::string ColorWrapHint(const Find& find);
std::string MultiColor1Log(const Find& find);
std::string MultiColor1Hint(const Find& find);
std::string MultiColor2Log(const Find& find);
std::string MultiColor2Hint(const Find& find);

// wings and rings of cells with few candidates
void XYWing(const Position& position, const Args& args, FindSink& sink);
void XYZWing(const Position& position, const Args& args, FindSink& sink);
void MultiXWing(const Position& position, const Args& args, FindSink& sink);
std::string XYWingLog(const Find& find);
std::string XYWingHint(const Find& find);
std::string XYZWingLog(const Find& find);
std::string XYZWingHint(const Find& find);
std::string MultiXWingLog(const Find& find);
std::string MultiXWingHint(const Find& find);

// bent sets
void WXYZWing(const Position& position, const Args& args, FindSink& sink);
void ExtendedWXYZWing(const Position& position, const Args& args, FindSink& sink);
std::string WXYZWingLog(const Find& find);
std::string WXYZWingHint(const Find& find);

// unique rectangles
void UniqueRectangle(const Position& position, const Args& args, FindSink& sink);
std::string UniqueRectangleLog(const Find& find);
std::string UniqueRectangleHint(const Find& find);

// avoidable rectangles
void AvoidableRectangle(const Position& position, const Args& args, FindSink& sink);
std::string AvoidableRectangleLog(const Find& find);
std::string AvoidableRectangleHint(const Find& find);

// the universal grave
void BUG(const Position& position, const Args& args, FindSink& sink);
std::string BUGLog(const Find& find);
std::string BUGHint(const Find& find);

// 3D Medusa
void Medusa(const Position& position, const Args& args, FindSink& sink);
std::string MedusaLog(const Find& find);
std::string MedusaHint(const Find& find);

// Sue-de-Coq
void SueDeCoq(const Position& position, const Args& args, FindSink& sink);
std::string SueDeCoqLog(const Find& find);
std::string SueDeCoqHint(const Find& find);

// aligned exclusions
void APE(const Position& position, const Args& args, FindSink& sink);
void ExtendedAPE(const Position& position, const Args& args, FindSink& sink);
void ATE(const Position& position, const Args& args, FindSink& sink);
void ExtendedATE(const Position& position, const Args& args, FindSink& sink);
std::string PairExclusionLog(const Find& find);
std::string PairExclusionHint(const Find& find);
std::string TripleExclusionLog(const Find& find);
std::string TripleExclusionHint(const Find& find);

// loops and chains of links
void NiceLoops(const Position& position, const Args& args, FindSink& sink);
void AIC(const Position& position, const Args& args, FindSink& sink);
std::string NiceLoopLog(const Find& find);
std::string NiceLoopHint(const Find& find);
std::string AlternatingChainLog(const Find& find);
std::string AlternatingChainHint(const Find& find);

// chains of bivalue cells
void XYChain(const Position& position, const Args& args, FindSink& sink);
std::string XYChainLog(const Find& find);
std::string XYChainHint(const Find& find);

// pairs of almost locked sets
void ALSxz(const Position& position, const Args& args, FindSink& sink);
std::string ALSxzLog(const Find& find);
std::string ALSxzHint(const Find& find);

// locked sets of several digits on rows and columns
void MultiFish(const Position& position, const Args& args, FindSink& sink);
std::string MultiFishLog(const Find& find);
std::string MultiFishHint(const Find& find);

// forcing chains
void Forcing(const Position& position, const Args& args, FindSink& sink);
std::string ForcingFromCellLog(const Find& find);
std::string ForcingFromCellHint(const Find& find);
std::string ForcingFromUnitLog(const Find& find);
std::string ForcingFromUnitHint(const Find& find);

// bifurcation
void Bifurcation(Solver& solver, FindSink& sink);
std::string BifurcationLog(const Find& find);
std::string BifurcationHint(const Find& find);

}  // namespace vemo
