#include "runtime/streams.h"

#include "runtime/native_path.h"

namespace terravane {

std::ifstream OpenToRead(const std::string& path)
{
    return std::ifstream(ToNative(path), std::ios::binary);
}

std::ofstream OpenNew(const std::string& path)
{
    return std::ofstream(ToNative(path), std::ios::binary | std::ios::trunc);
}

std::ofstream OpenToAdd(const std::string& path)
{
    std::ofstream file;
    file.rdbuf()->pubsetbuf(nullptr, 0);
    file.open(ToNative(path), std::ios::binary | std::ios::app);
    return file;
}

}  // namespace terravane
