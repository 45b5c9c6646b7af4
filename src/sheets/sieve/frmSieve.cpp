#include "sheets/sieve/frmSieve.h"

#include <array>

#include "laboratory/masks.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "sheets/pattern/grids.h"
#include "sheets/sieve/sieve_table.h"

namespace terravane {

namespace {

constexpr std::string_view kIndent = "     ";  // in front of a sieve's name

/// What a control tells under the mouse.
struct Hint {
    std::string_view control, text;
};
constexpr std::array kHints{
    Hint{"FraWt", "คลิกเลือกทดสอบแบบล้างน้ำหรือไม่"},
    Hint{"optNo", "ไม่"},
    Hint{"optYes", "ใช่"},
    Hint{"txtGsoil", "น้ำหนักดินแห้งเริ่มต้น"},
    Hint{"txtDwp", "น้ำนหักดินหลังจากล้างน้ำ"},
    Hint{"txtWl", "น้ำนหักดินที่หายไป"},
    Hint{"txtErr", "เปอร์เซ็นต์ความผิดพลาด"},
};

std::string Indented(std::string_view text)
{
    return std::string(kIndent).append(text);
}

std::vector<std::string> SieveList()
{
    std::vector<std::string> list;
    list.reserve(kSieves.size());
    for (const Sieve& sieve : kSieves) list.push_back(Indented(sieve.listed));
    return list;
}

}  // namespace

std::string_view BehindEquals(std::string_view text)
{
    const auto sign = text.find('=');
    return sign == std::string_view::npos ? text : text.substr(sign + 1);
}

frmSieve::frmSieve(Program& owner)
    : TestSheet(owner, laboratory::kSieveSheet),
      lstSieve(*this, "lstSieve", SieveList()),
      txtData(*this, "txtData", MSHSieve, TypedCellsOf(laboratory::kSieveStack))
{
    picGraph.Container = &picgraph1;
    picChart.Container = &picChart1;
    for (Control* hidden :
         std::initializer_list<Control*>{&MSHData, &MSH2, &MSH3, &Text6, &Command5, &Command6, &Option2, &Image3})
        hidden->SetVisible(false);
    for (CommandButton* later : {&cmdgraph, &cmdClass, &cmdView}) later->SetEnabled(false);
    SetHints();
    LockResults();
    ChainFocus(kHeadBlockWay);
}

void frmSieve::SetHints()
{
    for (const Hint& hint : kHints) Find(hint.control)->SetToolTip(std::string(hint.text));
}

void frmSieve::LockResults()
{
    for (TextBox* result : {&txtErr, &txtD60, &txtD30, &txtD10, &txtCu, &txtCc}) result->SetLocked(true);
    OpenWashing(false);
}

void frmSieve::Form_Load()
{
    for (TextBox* result : {&txtCu, &txtCc, &txtD60, &txtD30, &txtD10}) result->SetText("");
    SSTData.SetTab(0);
    BuildGrid(MSHSieve, laboratory::kSieveStack);
    DrawGrainSizeGrid();
    DrawPlasticityChart();
    DrawAxisCaption();
    TestSheet::Form_Load();
}

void frmSieve::optYes_Click()
{
    OpenWashing(true);
    txtGsoil.SetFocus();
}

void frmSieve::optNo_Click()
{
    OpenWashing(false);
    for (TextBox* washing : {&txtDwp, &txtWl}) washing->SetText("");
}

void frmSieve::OpenWashing(bool open)
{
    for (TextBox* washing : {&txtDwp, &txtWl}) {
        washing->SetEnabled(open);
        washing->SetBackColor(open ? kWindowColour : kButtonFace);
    }
}

bool frmSieve::txtDwp_KeyPress(Key key)
{
    if (key != Key::Enter) return false;
    txtWl.SetText(Format(Val(txtGsoil.Text()) - Val(txtDwp.Text()), kTwoDecimals));
    return true;
}

void frmSieve::cmdSieve_Click()
{
    for (int row = 1; row < kMostSieves; ++row) {
        for (int column = 0; column < sieve::kColumns; ++column) MSHSieve(row, column) = "";
    }
    int row = 0;
    for (std::size_t item = 0; item < kSieves.size(); ++item) {
        if (!lstSieve.Selected(item)) continue;
        if (++row > kMostSieves) {
            program.Ask().Show({"Maximum number of sieve is 10", "Warning", MessageStyle::Critical});
            break;
        }
        MSHSieve(row, sieve::Number) = Indented(kSieves[item].name);
        MSHSieve(row, sieve::Opening) = kSieves[item].opening;
    }
    txtErr.SetText("");
}

void frmSieve::MSHSieve_MouseDown(MouseButton button, int row, int column)
{
    if (button == MouseButton::Left) txtData.PressLeft(row, column);
}

void frmSieve::LoadChoice(std::string_view stored)
{
    TestSheet::LoadChoice(stored);
    SelectStack();
}

void frmSieve::SelectStack()
{
    for (int row = 1; row <= kMostSieves; ++row) {
        const Sieve* found = FindSieve(Trim(MSHSieve(row, sieve::Number)));
        if (found) lstSieve.SetSelected(static_cast<std::size_t>(found - kSieves.data()), true);
    }
}

void frmSieve::cmdAtt_Click()
{
    if (program.CurrentMaterial == Material::None) return;
    const StoredResults atterberg = ResultsOf(Test::AttSoil);
    txtLL.SetText(atterberg["LL"]);
    txtPL.SetText(atterberg["PL"]);
}

}  // namespace terravane
