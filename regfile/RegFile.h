// Registry contents as .reg text: the text that the registry editor exports and imports, in both its forms ("Windows
// Registry Editor Version 5.00" and "REGEDIT4"). Comments are not kept: what is loaded and saved again has lost them.
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
// Understood: UTF-16LE with byte order mark, UTF-8 with or without one, and Windows-1252; any line ends.
// The first text loaded into a registry decides the form and the encoding it is saved in.
std::optional<RegFileError> loadRegFile(std::string_view bytes, MemoryRegistry& registry);

// The whole registry as the bytes of a .reg file, laid out as the registry editor does it; a registry that no text was
// loaded into becomes a version 5.00 file in UTF-16LE. Keys stand in the order of the file read, new keys behind their
// siblings in alphabetical order. Nothing, and a reason in `error` (UTF-8) that names the key or value, when the form
// of the file cannot hold a name or a text.
std::optional<std::string> saveRegFile(const MemoryRegistry& registry, std::string* error = nullptr);

// For comparing states: the same states give the same text, however they came about. Key blocks as in a version 5.00
// file, but without header, in UTF-8, with "\n" line ends, one line per value (hex lines are not wrapped), keys and
// values sorted, a blank line between blocks; keys that hold nothing but subkeys are left out, being implied.
std::string dumpRegistry(const MemoryRegistry& registry);
// The same for one key and all below it; empty when there is no such key. The path is Windows-1252.
std::string dumpKey(const MemoryRegistry& registry, Root root, std::string_view path);

}  // namespace korvane
