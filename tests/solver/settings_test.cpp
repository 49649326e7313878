// The technique settings as they are stored.
#include "solver/settings.h"

#include <gtest/gtest.h>

#include "platform/memory_settings.h"

namespace vemo {
namespace {

using Stored = std::vector<std::pair<const char*, const char*>>;

TechniqueSettings Read(const Stored& stored) {
    MemorySettings store;
    for (const auto& [key, value] : stored) {
        store.Save("Technique", key, value);
    }
    return ReadTechniqueSettings(store);
}

TEST(TechniqueSettings, AreAllOnInCatalogueOrderAndHaltOnTheChecks) {
    const TechniqueSettings settings = Read({});
    for (int slot = 0; slot < kSlots; ++slot) {
        EXPECT_TRUE(settings.onOff[static_cast<std::size_t>(slot)]);
        EXPECT_EQ(settings.halt[static_cast<std::size_t>(slot)], slot <= 2);
        EXPECT_EQ(settings.order[static_cast<std::size_t>(slot)], slot);
        EXPECT_EQ(settings.SlotAt(slot), slot);
    }
}

TEST(TechniqueSettings, TheFirstEightAreOnAndTheChecksHaltWhateverIsStored) {
    const TechniqueSettings settings = Read({{"OnOff0", "0"},
                                             {"OnOff7", "0"},
                                             {"OnOff8", "0"},
                                             {"OnOff39", "0"},
                                             {"Halt0", "0"},
                                             {"Halt2", "0"},
                                             {"Halt3", "1"}});
    TechniqueSettings expected;
    expected.onOff[8] = expected.onOff[39] = false;
    expected.halt[3] = true;
    EXPECT_EQ(settings, expected);
}

TEST(TechniqueSettings, AnOrderThatIsNoneResetsAllForty) {
    const Stored exchanged = {{"Order8", "38"}, {"Order38", "8"}};
    EXPECT_EQ(Read(exchanged).order[8], 38);
    EXPECT_EQ(Read(exchanged).SlotAt(8), 38);
    for (const Stored& more : {Stored{{"Order10", "40"}},
                               {{"Order10", "-1"}},
                               {{"Order0", "40"}},
                               {{"Order10", "4294967306"}},         // 10 in 32 bits
                               {{"Order10", "11"}},                 // twice
                               {{"Order7", "9"}, {"Order9", "7"}},  // moves fixed slots
                               {{"Order39", "20"}, {"Order20", "39"}}}) {
        Stored stored = exchanged;
        stored.insert(stored.end(), more.begin(), more.end());
        EXPECT_EQ(Read(stored), TechniqueSettings()) << more[0].first << " " << more[0].second;
    }
}

TEST(TechniqueSettings, AMalformedTextReadsAsItsDefault) {
    EXPECT_EQ(Read({{"OnOff9", "no"}, {"Halt9", "1x"}, {"Order9", ""}, {"OnOff10", "0.5"}}),
              TechniqueSettings());
}

TEST(TechniqueSettings, AreReadBackAsTheyWereWritten) {
    TechniqueSettings settings;
    settings.onOff[20] = false;
    settings.halt[39] = true;
    std::swap(settings.order[12], settings.order[30]);
    MemorySettings store;
    WriteTechniqueSettings(store, settings);
    EXPECT_EQ(ReadTechniqueSettings(store), settings);
    EXPECT_EQ(store.Get("Technique", "OnOff20", ""), "0");
    EXPECT_EQ(store.Get("Technique", "OnOff0", ""), "1");
    EXPECT_EQ(store.Get("Technique", "Halt2", ""), "1");
    EXPECT_EQ(store.Get("Technique", "Halt39", ""), "1");
    EXPECT_EQ(store.Get("Technique", "Order12", ""), "30");
}

}  // namespace
}  // namespace vemo
