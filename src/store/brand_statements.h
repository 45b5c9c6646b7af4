/// The statements that change the brand store, composed as those of a project file are: nothing is escaped.
#pragma once

#include <string>
#include <string_view>

namespace terravane {

/// The five names of LOGO's one row.
struct LogoNames {
    std::string_view institute, department;
    std::string_view cover1, cover2, cover3;  // the reporter's lines on the cover
};

/// "UPDATE LOGO Set logo_ins ='...',  logo_dep ='...',  ...": no Where, the one row is meant.
std::string UpdateLogo(const LogoNames& names);

/// "UPDATE PERSON Set person_name ='...',  person_position ='...' Where person_ID =' 1'".
std::string UpdatePerson(int row, std::string_view name, std::string_view position);

}  // namespace terravane
