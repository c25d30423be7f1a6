// Registry contents as .reg text: the text that the registry editor exports and imports, in both its forms ("Windows
// Registry Editor Version 5.00" and "REGEDIT4"). A file is edited, not written anew: what people have put into it stays.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "regfile/MemoryRegistry.h"

namespace korvane {

struct RegFileError {
    std::size_t line = 0;  // from 1
    std::string reason;    // a phrase for a person, in English and UTF-8, without a full stop
};

// Merges the text into the registry as an import does: listed keys are created, listed values set, and what is marked
// with a minus sign is deleted. After an error the registry is as it was. Denied keys do not matter here.
// Understood: UTF-16LE with byte order mark, UTF-8 with or without one, and the registry's code page; any line ends; up
// to 2 GB.
// The first text loaded into a registry decides the form and the encoding it is saved in. When the registry held
// nothing before, it is the text that is edited when the registry is saved, and the registry keeps it until then.
std::optional<RegFileError> loadRegFile(std::string bytes, MemoryRegistry& registry);

// The bytes of a .reg file that gives the whole registry when it is imported: those that were loaded, with every line
// as it was except for values and keys that have changed since. The data of a changed value is replaced, a new value
// goes to the end of its key's section, a new key's section behind that of its nearest relative; the lines of deleted
// values and the sections of deleted keys go. What is new is laid out as the registry editor does it. A registry that
// no text was loaded into becomes a version 5.00 file in UTF-16LE. Nothing, and a reason in `error` (UTF-8) that names
// the key or value, when the form of the file cannot hold a name or a text.
std::optional<std::string> saveRegFile(const MemoryRegistry& registry, std::string* error = nullptr);

// For comparing states: the same states give the same text, however they came about. Key blocks as in a version 5.00
// file, but without header, in UTF-8, with "\n" line ends, one line per value (hex lines are not wrapped), keys and
// values sorted, a blank line between blocks; keys that hold nothing but subkeys are left out, being implied.
std::string dumpRegistry(const MemoryRegistry& registry);
// The same for one key and all below it; empty when there is no such key. The path is in the registry's code page.
std::string dumpKey(const MemoryRegistry& registry, Root root, std::string_view path);

}  // namespace korvane
