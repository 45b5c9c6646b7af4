/// A folder of the real disk for a test's own files.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "runtime/file_system.h"
#include "runtime/machine.h"
#include "unit/runtime/raises.h"

namespace terravane {

inline Bytes BytesOf(std::string_view text)
{
    return {text.begin(), text.end()};
}

inline std::string TextOf(const Bytes& bytes)
{
    return {bytes.begin(), bytes.end()};
}

/// An empty folder of its own for each test.
class Disk : public testing::Test {
  protected:
    void SetUp() override { folder_ = WithMark(MakePrivateFolder("terravane-files")); }
    void TearDown() override { RemoveAll(folder_); }

    std::string Path(const std::string& name) const { return folder_ + name; }
    std::vector<std::string> Names() const
    {
        auto names = files_.Names(folder_);
        std::ranges::sort(names);
        return names;
    }

    std::string folder_;
    DiskFileSystem files_;
};

}  // namespace terravane
