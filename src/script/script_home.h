/// The program's folder for one run.
#pragma once

#include <string>

#include "runtime/file_system.h"

namespace terravane {

/// A named folder stays; without a name a fresh private one is made, which goes away with this object. Both
/// come with the first content of their brand folder; a named one that has a brand folder keeps it as it is,
/// an empty one too.
class ScriptHome {
  public:
    ScriptHome(FileSystem& files, const std::string& named);
    ~ScriptHome();
    ScriptHome(const ScriptHome&) = delete;
    ScriptHome& operator=(const ScriptHome&) = delete;

    /// Without a mark at its end.
    const std::string& Path() const { return path_; }

  private:
    std::string path_;
    bool isPrivate_;
};

}  // namespace terravane
