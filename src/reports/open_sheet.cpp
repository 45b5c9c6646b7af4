#include "reports/open_sheet.h"

#include "reports/report.h"

namespace terravane {

std::string_view SheetNameOf(Test test)
{
    return ReportOf(test).sheet;
}

TestSheet& OpenSheet(const Program& program)
{
    return program.Get<TestSheet>(SheetNameOf(program.CurrentTest));
}

}  // namespace terravane
