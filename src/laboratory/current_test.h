/// Which test and which material the open sheet is about.
#pragma once

namespace terravane {

/// It names the test only: "Soil" in it does not mean the material, crushed-rock sheets carry the same
/// values.
enum class Test { None, StdSoil, ModSoil, DenSoil, SpcSoil, AttSoil, SieSoil, CBRSoil };

enum class Material { None, Soil, Crush };

inline bool IsCompaction(Test test)
{
    return test == Test::StdSoil || test == Test::ModSoil;
}

}  // namespace terravane
