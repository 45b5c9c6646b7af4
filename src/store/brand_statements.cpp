#include "store/brand_statements.h"

#include "store/statements.h"

namespace terravane {

namespace {

const TableSchema& PersonTable()
{
    return BrandTables().back();
}

}  // namespace

std::string UpdateLogo(const LogoNames& names)
{
    std::string statement = "UPDATE LOGO Set logo_ins ='";
    statement.append(names.institute).append("',  logo_dep ='").append(names.department);
    statement.append("',  logo_cov1 ='").append(names.cover1).append("',  logo_cov2 ='").append(names.cover2);
    return statement.append("' ,  logo_cov3 ='").append(names.cover3).append("'");
}

std::string UpdatePerson(int row, std::string_view name, std::string_view position)
{
    return UpdateRow(PersonTable(), {{"person_name", std::string(name)}, {"person_position", std::string(position)}},
                     row);
}

}  // namespace terravane
