// Version gates on versions of Windows that no tweak knows; which gate each tweak has, its written effects tell.
#include "pages/Gate.h"
#include "platform/memory/MemorySystem.h"

#include <gtest/gtest.h>

namespace korvane {
namespace {

COsVersion versionOf(VersionRecord record, bool fails = false) {
    MemoryVersion source;
    source.record = record;
    source.fails = fails;
    return COsVersion(source);
}

TEST(Gates, TheMajorVersionCountsOnNtOnly) {
    EXPECT_TRUE(Gate({kWin98, Alert::Only98}).open(versionOf({1, 7, 10})));
    EXPECT_TRUE(Gate({kWinXP, Alert::OnlyXp}).open(versionOf({2, 5, 90})));
    for (const VersionRecord& unknown : {VersionRecord{1, 4, 1}, VersionRecord{0, 3, 10}, VersionRecord{2, 3, 51},
                                         VersionRecord{2, 6, 1}, VersionRecord{3, 5, 1}, VersionRecord{2, 10, 0}}) {
        EXPECT_FALSE(Gate({kWindows9x | kWindowsNT, Alert::OnlyXp}).open(versionOf(unknown))) << unknown.majorVersion;
    }
    EXPECT_FALSE(kGateXp.open(versionOf({2, 5, 1}, true))) << "the system gave no version";
}

}  // namespace
}  // namespace korvane
