// The texts of the string table.
#include "app/StringTable.h"

#include <algorithm>

namespace korvane {
namespace {

// Intended: the wording, slips included; users and language files rely on it.
constexpr StringTableEntry kStrings[] = {
    {101, "&About Korvane Manager..."},
    {2001, "A L E R T"},
    {2002, "These Tweak active only on Windows NT/2000/XP"},
    {2003, "These Tweak active only on Windows 2000/XP"},
    {2004, "These Tweak active only on Windows XP"},
    {2005, "Please Set the Command Prompt Menu Name"},
    {2006, "Please Set the Alternate Program Path"},
    {2007, "Please Set the Log File Directory Path"},
    {2008, "Please Set the Location of the Dump File"},
    {2009, "Please Set the Number of Instructions To Record"},
    {2010, "Please Set the Location of Wave File for Sound Notification"},
    {2011, "These Tweak active only on Windows 2000/Me/XP"},
    {2012, "Please Set the Program Path"},
    {2013, "You must choose Enable Font Smoothing on Windows NT/2000/XP or Disable"},
    {2014, "You must choose Enable Font Smoothing on Windows 95/98/Me or Disable"},
    {2015, "These settings control activate only on Windows 98/Me/2000/XP"},
    {2016, "These Tweak Active only with Windows 95/98/Me/NT/2000"},
    {2017, "These Tweak active only on Windows 95/98/Me/2000/XP"},
    {2018, "These Tweak active only on Windows 2000/XP/98/Me/NT"},
    {2019, "These Tweak active only on Windows 2000"},
    {2020, "Please insert the Response Time for Hung Applications ..."},
    {2021, "These Tweak active only on Windows Me/XP"},
    {2022, "These Tweak active only on Microsoft Windows 98"},
};

}  // namespace

std::span<const StringTableEntry> stringTable() { return kStrings; }

std::string_view builtInString(int id) {
    const auto* found = std::ranges::lower_bound(kStrings, id, {}, &StringTableEntry::id);
    return found == std::end(kStrings) || found->id != id ? std::string_view() : found->text;
}

}  // namespace korvane
