// Whole files through the file calls of Windows.
#pragma once

#include "platform/System.h"

#include <memory>
#include <string>

namespace korvane {

class Win32Files final : public Files {
public:
    std::unique_ptr<File> openExisting(const std::string& path) override;
    std::unique_ptr<File> createAlways(const std::string& path) override;
};

}  // namespace korvane
