#include "store/schema.h"

#include <array>

#include "runtime/numbers.h"
#include "runtime/runtime_error.h"

namespace terravane {

namespace {

constexpr std::array kHead{
    ColumnSchema{"client", 100},
    ColumnSchema{"name", 100},
    ColumnSchema{"location", 150},
    ColumnSchema{"number", 10},
};

/// Standard and modified compaction, a trial a row.
constexpr std::array kCompaction{
    ColumnSchema{"ID", 10},    ColumnSchema{"date", 10},   ColumnSchema{"soil", 20}, ColumnSchema{"test", 50},
    ColumnSchema{"check", 50}, ColumnSchema{"height", 10}, ColumnSchema{"dia", 10},  ColumnSchema{"blow", 10},
    ColumnSchema{"layer", 10}, ColumnSchema{"wt", 10},     ColumnSchema{"can", 5},   ColumnSchema{"wcanw", 10},
    ColumnSchema{"wcand", 10}, ColumnSchema{"wcan", 10},   ColumnSchema{"awc", 5},   ColumnSchema{"wsm", 10},
    ColumnSchema{"wm", 10},    ColumnSchema{"omc", 10},    ColumnSchema{"mdd", 10},  ColumnSchema{"gs", 10},
};

/// Field density, a test hole a row.
constexpr std::array kDensity{
    ColumnSchema{"ID", 10},    ColumnSchema{"date", 10},  ColumnSchema{"soil", 20},   ColumnSchema{"pos", 100},
    ColumnSchema{"test", 50},  ColumnSchema{"check", 50}, ColumnSchema{"height", 10}, ColumnSchema{"dia", 10},
    ColumnSchema{"imsjc", 10}, ColumnSchema{"fmsjc", 10}, ColumnSchema{"mem", 10},    ColumnSchema{"mms", 10},
    ColumnSchema{"mmsp", 10},  ColumnSchema{"mp", 10},    ColumnSchema{"imsj", 10},   ColumnSchema{"fmsj", 10},
    ColumnSchema{"mwsc", 10},  ColumnSchema{"mdsc", 10},  ColumnSchema{"mc", 10},     ColumnSchema{"mdd", 10},
    ColumnSchema{"comp", 10},
};

/// Specific gravity: seven points of the flask's calibration and, beside the first three, the determinations.
constexpr std::array kSpecific{
    ColumnSchema{"ID", 10},     ColumnSchema{"date", 10},  ColumnSchema{"soil", 20},   ColumnSchema{"test", 50},
    ColumnSchema{"check", 50},  ColumnSchema{"temp1", 10}, ColumnSchema{"fwater", 10}, ColumnSchema{"temp2", 10},
    ColumnSchema{"swsoil", 10}, ColumnSchema{"can", 10},   ColumnSchema{"dscan", 10},  ColumnSchema{"wcan", 10},
    ColumnSchema{"gs", 10},
};

/// Atterberg limits, a trial of each limit a row.
constexpr std::array kAtterberg{
    ColumnSchema{"ID", 10},    ColumnSchema{"date", 10},   ColumnSchema{"soil", 20},   ColumnSchema{"test", 50},
    ColumnSchema{"check", 50}, ColumnSchema{"blows", 10},  ColumnSchema{"wscan1", 10}, ColumnSchema{"dscan1", 10},
    ColumnSchema{"wcan1", 10}, ColumnSchema{"wscan2", 10}, ColumnSchema{"dscan2", 10}, ColumnSchema{"wcan2", 10},
    ColumnSchema{"LL", 10},    ColumnSchema{"PL", 10},     ColumnSchema{"PI", 10},     ColumnSchema{"FI", 10},
};

/// Sieve analysis, a sieve a row.
constexpr std::array kSieve{
    ColumnSchema{"ID", 10},    ColumnSchema{"date", 10},  ColumnSchema{"soil", 20}, ColumnSchema{"test", 50},
    ColumnSchema{"check", 50}, ColumnSchema{"pwash", 10}, ColumnSchema{"mos", 10},  ColumnSchema{"maw", 10},
    ColumnSchema{"mlw", 10},   ColumnSchema{"sn", 15},    ColumnSchema{"so", 10},   ColumnSchema{"ms", 10},
    ColumnSchema{"mss", 10},   ColumnSchema{"LL", 10},    ColumnSchema{"PL", 10},
};

/// CBR: six columns of moulds and six swell readings in the first rows, up to twenty penetrations.
constexpr std::array kCbr{
    ColumnSchema{"ID", 10},    ColumnSchema{"date", 10},  ColumnSchema{"soil", 20},  ColumnSchema{"test", 50},
    ColumnSchema{"check", 50}, ColumnSchema{"typ", 10},   ColumnSchema{"mcan", 10},  ColumnSchema{"wcanw", 10},
    ColumnSchema{"wcand", 10}, ColumnSchema{"wcan", 10},  ColumnSchema{"nb", 15},    ColumnSchema{"dm", 10},
    ColumnSchema{"hs", 10},    ColumnSchema{"wms", 10},   ColumnSchema{"wm", 10},    ColumnSchema{"sd", 20},
    ColumnSchema{"st", 10},    ColumnSchema{"set", 10},   ColumnSchema{"s1", 10},    ColumnSchema{"s2", 10},
    ColumnSchema{"s3", 10},    ColumnSchema{"k", 10},     ColumnSchema{"sur", 10},   ColumnSchema{"pen", 10},
    ColumnSchema{"read1", 10}, ColumnSchema{"read2", 10}, ColumnSchema{"read3", 10},
};

/// Posted results, a material a row.
constexpr std::array kSummary{
    ColumnSchema{"ID", 10},         ColumnSchema{"LL", 10},   ColumnSchema{"PL", 10},    ColumnSchema{"PI", 10},
    ColumnSchema{"gravel", 10},     ColumnSchema{"sand", 10}, ColumnSchema{"finer", 10}, ColumnSchema{"USCS", 20},
    ColumnSchema{"AASHTO", 20},     ColumnSchema{"Gs", 10},   ColumnSchema{"omcS", 10},  ColumnSchema{"mddS", 10},
    ColumnSchema{"omcM", 10},       ColumnSchema{"mddM", 10}, ColumnSchema{"CBR", 10},   ColumnSchema{"swelling", 10},
    ColumnSchema{"compaction", 10},
};

constexpr std::array kProjectTables{
    TableSchema{"HEAD", "project_", kHead, 1, false}, TableSchema{"STDSOIL", "std_", kCompaction, 6},
    TableSchema{"MODSOIL", "mod_", kCompaction, 6},   TableSchema{"DENSOIL", "den_", kDensity, 6},
    TableSchema{"SPCSOIL", "spc_", kSpecific, 7},     TableSchema{"ATTSOIL", "att_", kAtterberg, 5},
    TableSchema{"SIESOIL", "sie_", kSieve, 10},       TableSchema{"CBRSOIL", "cbr_", kCbr, 20},
    TableSchema{"STDCRUSH", "std_", kCompaction, 6},  TableSchema{"MODCRUSH", "mod_", kCompaction, 6},
    TableSchema{"DENCRUSH", "den_", kDensity, 6},     TableSchema{"CBRCRUSH", "cbr_", kCbr, 20},
    TableSchema{"SPCCRUSH", "spc_", kSpecific, 7},    TableSchema{"ATTCRUSH", "att_", kAtterberg, 5},
    TableSchema{"SIECRUSH", "sie_", kSieve, 10},      TableSchema{kSummaryTable, "sum_", kSummary, 2},
};

constexpr std::array kLogo{
    ColumnSchema{"ID", 10},    ColumnSchema{"ins", 100},  ColumnSchema{"dep", 100},
    ColumnSchema{"cov1", 100}, ColumnSchema{"cov2", 100}, ColumnSchema{"cov3", 100},
};

constexpr std::array kPerson{
    ColumnSchema{"ID", 10},
    ColumnSchema{"name", 100},
    ColumnSchema{"position", 50},
};

constexpr std::array kBrandTables{
    TableSchema{"LOGO", "logo_", kLogo, 1},
    TableSchema{"PERSON", "person_", kPerson, kPersons},
};

/// The tables of each test, soil and crushed rock.
struct TestTables {
    Test test;
    std::string_view soil, crush;
};
constexpr std::array kTestTables{
    TestTables{Test::StdSoil, "STDSOIL", "STDCRUSH"}, TestTables{Test::ModSoil, "MODSOIL", "MODCRUSH"},
    TestTables{Test::DenSoil, "DENSOIL", "DENCRUSH"}, TestTables{Test::SpcSoil, "SPCSOIL", "SPCCRUSH"},
    TestTables{Test::AttSoil, "ATTSOIL", "ATTCRUSH"}, TestTables{Test::SieSoil, "SIESOIL", "SIECRUSH"},
    TestTables{Test::CBRSoil, "CBRSOIL", "CBRCRUSH"},
};

const TableSchema& ProjectTable(std::string_view name)
{
    for (const TableSchema& table : kProjectTables) {
        if (table.name == name) return table;
    }
    throw RuntimeError(error::kInvalidProcedureCall);
}

}  // namespace

std::span<const TableSchema> ProjectTables()
{
    return kProjectTables;
}

std::span<const TableSchema> BrandTables()
{
    return kBrandTables;
}

const TableSchema& SummaryTable()
{
    return ProjectTable(kSummaryTable);
}

const TableSchema& TableOf(Test test, Material material)
{
    for (const TestTables& tables : kTestTables) {
        if (tables.test != test || material == Material::None) continue;
        return ProjectTable(material == Material::Soil ? tables.soil : tables.crush);
    }
    throw RuntimeError(error::kInvalidProcedureCall, "No test sheet has been opened.");
}

std::string RowKey(int row)
{
    return SignedNumberText(static_cast<double>(row));
}

}  // namespace terravane
