// The form as a whole: its events, its load, the five names.
#include "app/frmPreferences.h"

#include <utility>

#include "jet/engine_error.h"
#include "store/brand_statements.h"
#include "store/new_stores.h"
#include "store/statements.h"

namespace terravane {

namespace {

constexpr double kWidth = 12600, kHeight = 9600;  // twips

}  // namespace

frmPreferences::frmPreferences(Program& owner)
    : Form(owner, "frmPreferences", "Preferences"), program(owner), ComDialog(owner.Ask())
{
    Width = kWidth;
    Height = kHeight;
    for (CommandButton* change : {&cmdLogo1, &cmdLogo2, &cmdLogo3}) change->SetEnabled(false);
    txtLogo.SetLocked(true);
}

void frmPreferences::Form_Load()
{
    PreparePersonGrid();
    LoadStore();
    keptNames_ = NamesShown();
    keptPersons_ = PersonsShown();
}

void frmPreferences::LoadStore()
try {
    program.BrandFolder = program.BrandFolderNow();
    for (const Logo& logo : {kInstitute, kDepartment, kCover}) LoadLogo(logo);
    ConnectStore();
    LoadNames();
    LoadPersons();
} catch (const RuntimeError&) {
}

void frmPreferences::ConnectStore()
{
    OpenBrandConnection(program);
    isConnected_ = true;
}

/// A load that stopped before it reached the store left the boxes empty: their emptiness must not go through an earlier
/// form's connection and over the names and persons that were not read. A connection that a failed write has ended is
/// made anew.
void frmPreferences::Write(std::string statement)
{
    if (!isConnected_) {
        throw RuntimeError(
            jet::engine::kFile,
            "The names and persons were not written: this form could not read them when it opened. Close "
            "it and open it again once '" +
                program.BrandFolder + "' holds 'logo.mdb' and the three logos.");
    }
    if (!program.BrandConnection.IsOpen()) OpenBrandConnection(program);
    Execute(program, program.BrandConnection, std::move(statement));
}

void frmPreferences::LoadNames()
{
    const jet::Recordset logo = Query(program, program.BrandConnection, SelectAll("LOGO"));
    txtIsName.SetText(logo.Fields("logo_ins"));
    txtDname.SetText(logo.Fields("logo_dep"));
    txtCov1.SetText(logo.Fields("logo_cov1"));
    txtCov2.SetText(logo.Fields("logo_cov2"));
    txtCov3.SetText(logo.Fields("logo_cov3"));
}

void frmPreferences::ChangeNames()
{
    const std::string institute = txtIsName.Text(), department = txtDname.Text();
    const std::string cover1 = txtCov1.Text(), cover2 = txtCov2.Text(), cover3 = txtCov3.Text();
    Write(UpdateLogo({institute, department, cover1, cover2, cover3}));
    program.FlushStores();  // a disk may refuse them: then they are not kept
    keptNames_ = NamesShown();
}

std::vector<std::string> frmPreferences::NamesShown() const
{
    return {txtIsName.Text(), txtDname.Text(), txtCov1.Text(), txtCov2.Text(), txtCov3.Text()};
}

bool frmPreferences::HoldsUnkeptTexts() const
{
    return NamesShown() != keptNames_ || PersonsShown() != keptPersons_ || IsTypingPerson();
}

void frmPreferences::cmdDbase_Click()
try {
    CreateBrandStore(program.Files(), BrandStoreToCreate(program.Files(), program.BrandFolderNow()));
    program.BrandFolder = program.BrandFolderNow();
    ConnectStore();
} catch (const RuntimeError&) {
}

}  // namespace terravane
