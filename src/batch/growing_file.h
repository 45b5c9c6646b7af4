/// A file that grows over a long run and appears whole at its end, or not at all.
#pragma once

#include <string>
#include <string_view>

#include "runtime/runtime_error.h"
#include "runtime/streams.h"

namespace terravane {

/// Stands beside its target under another name until Finish; without it, it goes away with this object. An empty path
/// is no file: everything does nothing. A link that the user named is followed; devices and pipes are refused. Errors
/// 75 and 57 name the path.
class GrowingFile {
  public:
    explicit GrowingFile(std::string path);
    ~GrowingFile();
    GrowingFile(const GrowingFile&) = delete;
    GrowingFile& operator=(const GrowingFile&) = delete;

    bool IsWanted() const { return !path_.empty(); }
    void Add(std::string_view text);
    void Finish();

  private:
    RuntimeError Failure(int number) const;

    std::string path_, target_, part_;
    std::ofstream file_;
};

}  // namespace terravane
