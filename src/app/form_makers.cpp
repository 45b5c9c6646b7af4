#include "app/form_makers.h"

#include "app/frmAbout.h"
#include "app/frmProject.h"
#include "app/frmTitle.h"
#include "app/mdiBack.h"
#include "reports/frmPreview.h"
#include "sheets/compaction/frmCompaction.h"

namespace terravane {

namespace {

template <class T>
void Add(Program& program, const std::string& name)
{
    program.AddForm(name, [](Program& owner) { return std::make_unique<T>(owner); });
}

}  // namespace

void AddForms(Program& program)
{
    Add<frmTitle>(program, "frmTitle");
    Add<mdiBack>(program, std::string(kFrameName));
    Add<frmProject>(program, "frmProject");
    Add<frmAbout>(program, "frmAbout");
    Add<frmCompaction>(program, "frmCompaction");
    Add<frmPreview>(program, "frmPreview");
}

}  // namespace terravane
