#include "reports/brand.h"

#include <string>

#include "controls/furniture.h"
#include "runtime/text.h"
#include "store/statements.h"

namespace terravane {

namespace {

const jet::Recordset& OpenBrandTable(Program& program, std::string_view table)
{
    program.BrandFolder = program.BrandFolderNow();
    OpenBrandConnection(program);
    return Query(program, program.BrandConnection, SelectAll(table));
}

}  // namespace

const jet::Recordset& OpenLogoRow(Program& program)
{
    return OpenBrandTable(program, "LOGO");
}

std::shared_ptr<const Picture> LoadBrandPicture(Program& program, std::string_view holder, std::string_view file)
{
    auto picture = LoadPicture(program.Files(), program.BrandFolderNow() + std::string(file));
    if (Form* preview = program.Loaded("frmPreview")) preview->Get<Image>(holder).SetContent(picture);
    return picture;
}

void LoadApproverName(Program& program)
{
    OpenBrandTable(program, "PERSON");
    jet::Recordset& persons = program.CurrentRecordset;
    for (int row = 1; row <= kPersons; ++row, persons.MoveNext()) {
        if (Trim(persons.Fields("person_position")) != "Approver") continue;
        program.ApproverName = Trim(persons.Fields("person_name"));
        return;
    }
}

}  // namespace terravane
