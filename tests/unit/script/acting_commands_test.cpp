// What a script does to the forms, and what it is refused.
#include "unit/script/script_bench.h"

namespace terravane::testing {
namespace {

class ActingCommands : public ScriptBench {};

TEST_F(ActingCommands, DialogsAnswerBeforeTheCommandThatShowedThem)
{
    const auto run = Run("answer " + Folder() + "road.mdb\nmenu mnuNew\nforms\n");
    EXPECT_EQ(run.Text(), "{\"dialog\":\"New File\",\"kind\":\"save\",\"answer\":" + Json(Folder() + "road.mdb") +
                              "}\n{\"forms\":[\"mdiBack\",\"frmProject\"]}\n");
    EXPECT_TRUE(std::filesystem::exists(Folder() + "TRVN_road.mdb"));
}

TEST_F(ActingCommands, UnansweredQuestionIsCancelled)
{
    EXPECT_EQ(Run("menu mnuNew\n").Text(),
              R"({"dialog":"New File","kind":"save","answer":"cancel"})"
              "\n"
              R"({"message":"Cancel was selected.","title":"Error","style":"critical","answer":"ok"})"
              "\n");
}

TEST_F(ActingCommands, BoxWithoutAChoiceTakesNoAnswer)
{
    const auto run = Run("answer cancel\nmenu mnuAs\nmenu mnuOpen\n");
    EXPECT_EQ(run.Text(), R"({"message":"Please select menu of New File or Open File before.","title":"Warning",)"
                          R"("style":"information","answer":"ok"})"
                          "\n"
                          R"({"dialog":"Open File","kind":"open","answer":"cancel"})"
                          "\n");
}

TEST_F(ActingCommands, QuestionTakesItsQueuedAnswer)
{
    const std::string put = "put MSHWt 2 3 100\nput MSHDensity 0 3 8\n";
    const std::string look = "get MSHWt 2 3\nget MSHDensity 0 3\n";
    const auto message = [](const std::string& answer) {
        return "{\"message\":\"คุณต้องการลบข้อมูลคอมลัมภ์นี้ใช่หรือไม่?\",\"title\":\"ยืนยันการลบ\",\"style\":\"plain\",\"answer\":"
               "\"" +
               answer + "\"}\n";
    };
    const auto cells = [](const std::string& mass, const std::string& water) {
        return "{\"cell\":\"MSHWt\",\"row\":2,\"col\":3,\"text\":\"" + mass +
               "\"}\n{\"cell\":\"MSHDensity\",\"row\":0,\"col\":3,\"text\":\"" + water + "\"}\n";
    };
    EXPECT_EQ(RunOnSheet(put + "answer ok\nmouse MSHWt right 2 3\n" + look).Text(), message("ok") + cells("", ""));
    EXPECT_EQ(RunOnSheet(put + "mouse MSHWt right 2 3\n" + look).Text(), message("cancel") + cells("100", "8"));
    EXPECT_EQ(RunOnSheet(put + "answer yes\nmouse MSHWt right 2 3\n" + look).Text(),
              message("cancel") + cells("100", "8"));
}

TEST_F(ActingCommands, RelativePathsCountFromTheWorkingFolder)
{
    const auto run = Run("answer some/../road.mdb\nmenu mnuOpen\nget mnuRecent\n");
    EXPECT_EQ(run.Last(), "{\"get\":\"mnuRecent\",\"text\":" + Json(FullPath("road.mdb")) + "}");
}

TEST_F(ActingCommands, TypedCellTakesWhatTheCommitRulesMakeOfIt)
{
    const auto run = RunOnSheet(
        "type MSHWt 1 2 A7\ntype MSHWt 2 2 12\ntype MSHDensity 1 1 \" 12 \"\n"
        "get MSHWt 1 2\nget MSHWt 2 2\nget MSHDensity 1 1\n");
    EXPECT_EQ(run.Text(), R"({"cell":"MSHWt","row":1,"col":2,"text":"A7"})"
                          "\n"
                          R"({"cell":"MSHWt","row":2,"col":2,"text":"12.00"})"
                          "\n"
                          R"({"cell":"MSHDensity","row":1,"col":1,"text":"12"})"
                          "\n");
}

TEST_F(ActingCommands, KeysGoToTheFloatingEditor)
{
    // Enter after the last editable row opens the top of the next column; Left goes back; what is set is committed.
    const auto run = RunOnSheet(
        "type MSHWt 4 1 5\nkey MSHWt Left\nset txtData 77\nkey MSHWt Enter\nget MSHWt 1 1\n"
        "get txtData.Visible\nkey MSHWt Esc\nget txtData.Visible\nkey MSHWt Enter\n");
    EXPECT_EQ(run.Text(), R"({"cell":"MSHWt","row":1,"col":1,"text":"77"})"
                          "\n"
                          R"({"get":"txtData.Visible","value":true})"
                          "\n"
                          R"({"get":"txtData.Visible","value":false})"
                          "\n"
                          R"({"refused":"MSHWt","why":"hidden"})"
                          "\n");
}

TEST_F(ActingCommands, KeysGoToOtherControlsToo)
{
    const auto run = RunOnSheet("type MSHWt 1 1 5\nset txtID 7\nkey txtClient enter\nget txtData.Visible\n");
    EXPECT_EQ(run.Last(), R"({"get":"txtData.Visible","value":false})") << "A field of the head hides the editor.";
}

TEST_F(ActingCommands, PutWritesPastTheEditor)
{
    EXPECT_EQ(RunOnSheet("put MSHWt 5 1 \"as it is \"\nget MSHWt 5 1\n").Last(),
              R"({"cell":"MSHWt","row":5,"col":1,"text":"as it is "})");
}

TEST_F(ActingCommands, MouseOpensTheEditor)
{
    EXPECT_EQ(RunOnSheet("put MSHWt 3 2 115\nmouse MSHWt left 3 2\nget txtData\n").Last(),
              R"({"get":"txtData","text":"115"})");
}

TEST_F(ActingCommands, BoxesOptionsAndLists)
{
    const auto run = RunOnSheet(
        "click cmdCal\nchoose cboWt \"4.5 kg\"\nset cboBlow 30\nclick optFit\nset DTPDate 2026-11-20\n"
        "get cboWt\nget cboBlow\nget optFit.Value\nget optInt.Value\nget DTPDate\n"
        "check chkSatLine on\nget chkSatLine.Value\ncheck chkSatLine off\nclick chkSatLine\n"
        "get chkSatLine.Value\n");
    EXPECT_EQ(run.Text(), R"({"get":"cboWt","text":"4.5 kg"})"
                          "\n"
                          R"({"get":"cboBlow","text":"30"})"
                          "\n"
                          R"({"get":"optFit.Value","value":true})"
                          "\n"
                          R"({"get":"optInt.Value","value":false})"
                          "\n"
                          R"({"get":"DTPDate","text":"20/11/2026"})"
                          "\n"
                          R"({"get":"chkSatLine.Value","value":true})"
                          "\n"
                          R"({"get":"chkSatLine.Value","value":true})"
                          "\n");
}

TEST_F(ActingCommands, ListEntriesAreSelectedByTheirTrimmedText)
{
    const auto run = RunOnSheet(
        "menu mnuSie1\nselect lstSieve #4 on\nselect lstSieve \"3/8 in\" on\n"
        "select lstSieve #4 off\nselect lstSieve #3000 on\nclick cmdSieve\nget MSHSieve 1 1\n");
    EXPECT_EQ(run.answers.at(0),
              R"({"error":5,"description":"There is no entry \"#3000\"","line":"select lstSieve #3000 on"})");
    EXPECT_EQ(run.Last(), R"({"cell":"MSHSieve","row":1,"col":1,"text":"9.51"})") << run.Text();
}

TEST_F(ActingCommands, ErrorsOfHandlersNameTheLine)
{
    const auto run = RunOnSheet(
        "  set DTPDate  soon\nput MSHDensity 2 1 10\nset txtDia 0\nput MSHDensity 1 1 20\n"
        "click cmdCal\nchoose cboWt \"9 kg\"\nput MSHWt 99 1 x\nget MSHWt 0 7\ntab SSTData 9\n");
    EXPECT_EQ(run.Text(), R"({"error":13,"description":"Type mismatch","line":"set DTPDate  soon"})"
                          "\n"
                          R"({"error":11,"description":"Division by zero","line":"click cmdCal"})"
                          "\n"
                          R"({"error":5,"description":"There is no entry \"9 kg\"","line":"choose cboWt \"9 kg\""})"
                          "\n"
                          R"({"error":9,"description":"Subscript out of range","line":"put MSHWt 99 1 x"})"
                          "\n"
                          R"({"error":9,"description":"Subscript out of range","line":"get MSHWt 0 7"})"
                          "\n"
                          R"({"error":5,"description":"Invalid procedure call or argument","line":"tab SSTData 9"})"
                          "\n");
    EXPECT_EQ(run.status, 0) << "Run-time errors of forms are answers.";
}

TEST_F(ActingCommands, WhatAPersonCouldNotUseIsRefused)
{
    EXPECT_EQ(Run("menu mnuStd1\nmenu mnuRecent\n").Text(), R"({"refused":"mnuStd1","why":"disabled"})"
                                                            "\n"
                                                            R"({"refused":"mnuRecent","why":"hidden"})"
                                                            "\n");
    const auto run = RunOnSheet(
        "tab SSTData 1\nget SSTData.Tab\ntype MSHWt 5 1 3\ntype MSHWt 1 0 3\nget MSHWt 5 1\n"
        "set txtData 3\nclick cmdOMC\n");
    EXPECT_EQ(run.answers.at(0), R"({"refused":"SSTData","why":"disabled"})");
    EXPECT_EQ(run.answers.at(1), R"({"get":"SSTData.Tab","value":0})");
    EXPECT_EQ(run.answers.at(2), R"({"refused":"MSHWt","why":"locked"})");
    EXPECT_EQ(run.answers.at(3), R"({"refused":"MSHWt","why":"locked"})");
    EXPECT_EQ(run.answers.at(4), R"({"cell":"MSHWt","row":5,"col":1,"text":""})");
    EXPECT_EQ(run.answers.at(5), R"({"refused":"txtData","why":"hidden"})");
    EXPECT_EQ(run.answers.at(6), R"({"refused":"cmdOMC","why":"disabled"})");
}

// Whatever is done to it and whatever kind of control it is: nobody comes to a tab that is disabled. One that is only
// not in front is within reach.
TEST_F(ActingCommands, NothingOnADisabledTabIsUsed)
{
    const std::string onTheCurve =
        "click optFit\nset Text4 3\nchoose cboSr 20%\ncheck chkSatLine on\nkey Text4 Enter\n";
    const auto shut = RunOnSheet(onTheCurve + "get optFit.Value\nget Text4\nget cboSr\nget chkSatLine.Value\n");
    EXPECT_EQ(shut.Text(), R"({"refused":"optFit","why":"disabled"})"
                           "\n"
                           R"({"refused":"Text4","why":"disabled"})"
                           "\n"
                           R"({"refused":"cboSr","why":"disabled"})"
                           "\n"
                           R"({"refused":"chkSatLine","why":"disabled"})"
                           "\n"
                           R"({"refused":"Text4","why":"disabled"})"
                           "\n"
                           R"({"get":"optFit.Value","value":false})"
                           "\n"
                           R"({"get":"Text4","text":""})"
                           "\n"
                           R"({"get":"cboSr","text":"0%"})"
                           "\n"
                           R"({"get":"chkSatLine.Value","value":false})"
                           "\n");
    const auto open = RunOnSheet("click cmdCal\nget SSTData.Tab\n" + onTheCurve + "get optFit.Value\nget Text4\n");
    EXPECT_EQ(open.Text(), R"({"get":"SSTData.Tab","value":0})"
                           "\n"
                           R"({"get":"optFit.Value","value":true})"
                           "\n"
                           R"({"get":"Text4","text":"3"})"
                           "\n");
    EXPECT_EQ(RunOnSheet("menu mnuCBR1\nset cboCBR 98%\nclick lbl01\n").Text(),
              R"({"refused":"cboCBR","why":"disabled"})"
              "\n"
              R"({"refused":"lbl01","why":"disabled"})"
              "\n");
}

// The equation of the last plot goes with the press; a load or a plot that chooses the same model leaves it.
TEST_F(ActingCommands, AChosenOptionClickedAgainIsAClick)
{
    const auto run = RunOnSheet("menu mnuSpe1\nset txtFormula old\nclick optAut\nget txtFormula\nget optAut.Value\n");
    EXPECT_EQ(run.Text(), R"({"get":"txtFormula","text":""})"
                          "\n"
                          R"({"get":"optAut.Value","value":true})"
                          "\n");
}

TEST_F(ActingCommands, FormsUnderADialogStayWithinReach)
{
    const auto run = RunOnSheet("menu mnuAbout\nset txtSoil 3\nget txtSoil\nclick cmdClose\nforms\n");
    EXPECT_EQ(run.answers.at(0), R"({"get":"txtSoil","text":"3"})");
    EXPECT_EQ(run.answers.at(1), R"({"forms":["mdiBack","frmCompaction"]})");
}

TEST_F(ActingCommands, ToolbarsByNumberAndByKey)
{
    const auto run = RunOnSheet("set txtSoil \"Sample 3\"\ntool tblMenu 1\nsql \"SELECT * from STDSOIL'\"\n");
    ASSERT_EQ(run.answers.size(), 6U) << run.Text();
    EXPECT_NE(run.answers.at(5).find(R"("values":[" 6","21/11/2026","Sample 3")"), std::string::npos) << run.Last();
    EXPECT_EQ(RunOnSheet("click cmdView\ntool Toolbar1 mn3\nforms\n").Last(),
              R"({"forms":["mdiBack","frmCompaction"]})");
    EXPECT_EQ(RunOnSheet("tool tblMenu 2\nforms\n").Last(), R"({"forms":["mdiBack"]})");
}

TEST_F(ActingCommands, CloseTakesTheFormShownLast)
{
    const auto run = RunOnSheet("click cmdView\nforms\nclose\nforms\nclose\nforms\nclose\nforms\n");
    EXPECT_EQ(run.Text(), R"({"forms":["mdiBack","frmCompaction","frmPreview"]})"
                          "\n"
                          R"({"forms":["mdiBack","frmCompaction"]})"
                          "\n"
                          R"({"forms":["mdiBack"]})"
                          "\n")
        << "With the frame the run ends.";
    EXPECT_EQ(Read("home/FileRecent.txt"), Folder() + "TRVN_road.mdb\r\n");
}

TEST_F(ActingCommands, NamesAreLookedUpFromTheTopDown)
{
    // txtID is in General Data and on the sheet; the one of the form shown last is meant.
    const auto run =
        RunOnSheet("set txtID sheet\nanswer " + Folder() +
                   "b.mdb\nmenu mnuNew\nset txtID new\nget txtID\nget frmProject.txtID\nget frmproject.TXTid.Enabled\n"
                   "get frmCompaction.txtID\n");
    EXPECT_EQ(run.answers.at(1), R"({"get":"txtID","text":"new"})");
    EXPECT_EQ(run.answers.at(2), R"({"get":"frmProject.txtID","text":"new"})");
    EXPECT_EQ(run.answers.at(3), R"({"get":"frmproject.TXTid.Enabled","value":true})");
    EXPECT_EQ(run.status, 1) << "The sheet was closed by New File.";
}

TEST_F(ActingCommands, PrintDialogTakesThePdf)
{
    const auto run =
        RunOnSheet("click cmdView\ntool Toolbar1 mn2\nanswer " + Folder() + "report.pdf\ntool Toolbar1 mn2\n");
    EXPECT_EQ(run.answers.at(0), R"({"dialog":"Print","kind":"print","answer":"cancel"})");
    EXPECT_EQ(run.answers.at(1),
              "{\"dialog\":\"Print\",\"kind\":\"print\",\"answer\":" + Json(Folder() + "report.pdf") + "}");
    EXPECT_EQ(Read("report.pdf").substr(0, 5), "%PDF-");
}

}  // namespace
}  // namespace terravane::testing
