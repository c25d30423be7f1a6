// The version of Windows as gates test it, and sets of versions.
#pragma once

#include "platform/System.h"

#include <cstdint>

namespace korvane {

class COsVersion {
public:
    explicit COsVersion(VersionSource& source) { source.getVersion(record_); }

    // Intended: the tests of the Windows 95 family ignore the major version.
    constexpr bool IsWin95() const { return record_.platformId == kWindows && record_.minorVersion == 0; }
    constexpr bool IsWin98() const { return record_.platformId == kWindows && record_.minorVersion == 10; }
    constexpr bool IsWinMe() const { return record_.platformId == kWindows && record_.minorVersion == 90; }
    constexpr bool IsWinNT4() const { return record_.platformId == kNt && record_.majorVersion == 4; }
    constexpr bool IsWin2000() const { return isNt5() && record_.minorVersion == 0; }
    // Intended: also true on every later 5.x version. From 6.0 on every test is false, so that every gate refuses.
    constexpr bool IsWinXP() const { return isNt5() && record_.minorVersion >= 1; }

private:
    static constexpr std::uint32_t kWindows = 1;
    static constexpr std::uint32_t kNt = 2;

    constexpr bool isNt5() const { return record_.platformId == kNt && record_.majorVersion == 5; }

    VersionRecord record_;  // all zero, so that every test is false, if the version is unknown
};

// A set of Windows versions.
class VersionSet {
public:
    constexpr VersionSet() = default;
    constexpr VersionSet operator|(VersionSet other) const {
        return VersionSet(static_cast<std::uint8_t>(bits_ | other.bits_));
    }
    constexpr bool operator==(const VersionSet&) const = default;
    constexpr bool empty() const { return bits_ == 0; }
    constexpr bool contains(const COsVersion& version) const {
        return (has(kBit95) && version.IsWin95()) || (has(kBit98) && version.IsWin98()) ||
               (has(kBitMe) && version.IsWinMe()) || (has(kBitNT4) && version.IsWinNT4()) ||
               (has(kBit2000) && version.IsWin2000()) || (has(kBitXP) && version.IsWinXP());
    }

    static constexpr VersionSet win95() { return VersionSet(kBit95); }
    static constexpr VersionSet win98() { return VersionSet(kBit98); }
    static constexpr VersionSet winMe() { return VersionSet(kBitMe); }
    static constexpr VersionSet winNT4() { return VersionSet(kBitNT4); }
    static constexpr VersionSet win2000() { return VersionSet(kBit2000); }
    static constexpr VersionSet winXP() { return VersionSet(kBitXP); }

private:
    enum : std::uint8_t { kBit95 = 1, kBit98 = 2, kBitMe = 4, kBitNT4 = 8, kBit2000 = 16, kBitXP = 32 };

    constexpr explicit VersionSet(std::uint8_t bits) : bits_(bits) {}
    constexpr bool has(std::uint8_t bit) const { return (bits_ & bit) != 0; }

    std::uint8_t bits_ = 0;
};

constexpr VersionSet kWin95 = VersionSet::win95();
constexpr VersionSet kWin98 = VersionSet::win98();
constexpr VersionSet kWinMe = VersionSet::winMe();
constexpr VersionSet kWinNT4 = VersionSet::winNT4();
constexpr VersionSet kWin2000 = VersionSet::win2000();
constexpr VersionSet kWinXP = VersionSet::winXP();
constexpr VersionSet kWindows9x = kWin95 | kWin98 | kWinMe;
constexpr VersionSet kWindowsNT = kWinNT4 | kWin2000 | kWinXP;

}  // namespace korvane
