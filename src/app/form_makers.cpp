#include "app/form_makers.h"

#include "app/frmAbout.h"
#include "app/frmPreferences.h"
#include "app/frmProject.h"
#include "app/frmTitle.h"
#include "app/mdiBack.h"
#include "reports/frmPreview.h"
#include "results/frmSummary.h"
#include "sheets/atterberg/frmAtterberg.h"
#include "sheets/cbr/frmCBR.h"
#include "sheets/compaction/frmCompaction.h"
#include "sheets/density/frmDensity.h"
#include "sheets/sieve/frmSieve.h"
#include "sheets/specific/frmSpecific.h"

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
    Add<frmPreferences>(program, "frmPreferences");
    Add<frmCBR>(program, "frmCBR");
    Add<frmCompaction>(program, "frmCompaction");
    Add<frmDensity>(program, "frmDensity");
    Add<frmSieve>(program, "frmSieve");
    Add<frmAtterberg>(program, "frmAtterberg");
    Add<frmSpecific>(program, "frmSpecific");
    Add<frmPreview>(program, "frmPreview");
    Add<frmSummary>(program, "frmSummary");
}

}  // namespace terravane
