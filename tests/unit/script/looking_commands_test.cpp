// What a script is told.
#include "unit/script/script_bench.h"

namespace terravane::testing {
namespace {

class LookingCommands : public ScriptBench {};

TEST_F(LookingCommands, TextsAndStates)
{
    const auto run = RunOnSheet(
        "set txtSoil \"a \\\"b\\\" ก\"\nget txtSoil\nget cmdCal\nget cmdCal.Caption\n"
        "get cmdCal.Enabled\nget cmdCal.BackColor\nget txtSoil.BackColor\nget txtSoil.Locked\n"
        "get cboWt.ListCount\nget cboWt.List 1\nget MSHWt.Rows\nget MSHWt.Cols\nget SSTData.Tab\n"
        "get SSTData.TabEnabled 0\nget SSTData.TabEnabled 1\nget stbDes\nget StatusBar1.BackColor\n"
        "get cboWt.List 2\n");
    EXPECT_EQ(run.Text(),
              "{\"get\":\"txtSoil\",\"text\":\"a \\\"b\\\" ก\"}\n"
              "{\"get\":\"cmdCal\",\"text\":\"Calculate\"}\n"
              "{\"get\":\"cmdCal.Caption\",\"value\":\"Calculate\"}\n"
              "{\"get\":\"cmdCal.Enabled\",\"value\":true}\n"
              "{\"get\":\"cmdCal.BackColor\",\"value\":\"#FFC080\"}\n"
              "{\"get\":\"txtSoil.BackColor\",\"value\":\"\"}\n"
              "{\"get\":\"txtSoil.Locked\",\"value\":false}\n"
              "{\"get\":\"cboWt.ListCount\",\"value\":2}\n"
              "{\"get\":\"cboWt.List 1\",\"value\":\"4.5 kg\"}\n"
              "{\"get\":\"MSHWt.Rows\",\"value\":8}\n"
              "{\"get\":\"MSHWt.Cols\",\"value\":7}\n"
              "{\"get\":\"SSTData.Tab\",\"value\":0}\n"
              "{\"get\":\"SSTData.TabEnabled 0\",\"value\":true}\n"
              "{\"get\":\"SSTData.TabEnabled 1\",\"value\":false}\n"
              "{\"get\":\"stbDes\",\"text\":" +
                  Json("Database File is " + Folder() + "TRVN_road.mdb") +
                  "}\n"
                  "{\"get\":\"StatusBar1.BackColor\",\"value\":\"#32CD32\"}\n"
                  "{\"error\":9,\"description\":\"Subscript out of range\",\"line\":\"get cboWt.List 2\"}\n");
}

TEST_F(LookingCommands, DumpTellsEveryRow)
{
    const auto run = RunOnSheet("put MSHDensity 1 2 1676\ndump MSHDensity\n");
    ASSERT_EQ(run.answers.size(), 7U);
    EXPECT_EQ(run.answers.at(0),
              R"-({"dump":"MSHDensity","row":0,"cells":["Assumed Water Content, (%)","","","","","",""]})-");
    EXPECT_EQ(run.answers.at(1),
              R"-({"dump":"MSHDensity","row":1,"cells":["Mass of Wet Soil + Mold, (g)","","1676","","","",""]})-");
}

TEST_F(LookingCommands, StatementsAnswerRowsOrTheirCount)
{
    const auto run = RunOnSheet(
        "sql \"SELECT * from HEAD'\"\nsql \"UPDATE HEAD Set project_name ='x'\"\n"
        "sql \"SELECT * from HEAD'\"\nsql \"SELECT * from NOTHING'\"\n"
        "brandsql \"UPDATE PERSON Set person_name ='Anong' Where person_ID =' 2'\"\n");
    EXPECT_EQ(run.answers.at(0),
              R"({"row":1,"columns":["project_client","project_name","project_location","project_number"],)"
              R"("values":["","","","R-17"]})");
    EXPECT_EQ(run.answers.at(1), R"({"rows_affected":1})");
    EXPECT_NE(run.answers.at(2).find(R"("values":["","x","","R-17"])"), std::string::npos) << run.answers.at(2);
    EXPECT_EQ(run.answers.at(3).find("{\"error\":-2147217865,"), 0U) << run.answers.at(3);
    EXPECT_EQ(run.answers.at(4), R"({"rows_affected":1})");
    EXPECT_EQ(Run("brandsql \"SELECT * from PERSON'\"\n").answers.at(1),
              R"({"row":2,"columns":["person_ID","person_name","person_position"],"values":[" 2","Anong","   "]})")
        << "The home keeps its brand store from run to run.";
}

TEST_F(LookingCommands, StatementWithoutAProjectIsAnError)
{
    EXPECT_EQ(Run("sql \"SELECT * from HEAD'\"\n").Last().find("{\"error\":-2147467259,"), 0U);
}

TEST_F(LookingCommands, PrintedPagesLeaveThePrinterAsItWas)
{
    const auto cover = RunOnSheet("set txtProject \"Bypass Road\"\npage print 1\n");
    EXPECT_NE(cover.Text().find("Bypass Road"), std::string::npos) << "The cover names the project.";
    const auto twice = RunOnSheet("page print 2\necho --\npage print 2\n");
    const std::string text = twice.Text(), mark = "{\"echo\":\"--\"}\n";
    const auto between = text.find(mark);
    ASSERT_NE(between, std::string::npos);
    EXPECT_EQ(text.substr(0, between), text.substr(between + mark.size()));
    EXPECT_EQ(RunOnSheet("page print 3\n").Last(),
              R"({"error":5,"description":"There is no page 3","line":"page print 3"})");
}

TEST_F(LookingCommands, PreviewTellsItsPageAndIsRendered)
{
    const auto run =
        RunOnSheet("set txtClient Highways\nclick cmdView\npage preview\nrender preview " + Folder() + "page.png 50\n");
    EXPECT_NE(run.Text().find(R"({"text":"Highways",)"), std::string::npos);
    EXPECT_EQ(Read("page.png").substr(1, 3), "PNG");
    EXPECT_EQ(RunOnSheet("page preview\n").Last().find("{\"error\":424,"), 0U);
}

/// What the head of a picture says, in dots.
int WidthOf(const std::string& png)
{
    const auto byte = [&png](std::size_t at) { return static_cast<int>(static_cast<unsigned char>(png.at(at))); };
    return byte(18) * 256 + byte(19);
}

TEST_F(LookingCommands, RenderedPageIsAsLargeAsAskedFor)
{
    const std::string render = "render preview " + Folder();
    RunOnSheet("click cmdView\n" + render + "whole.png\n" + render + "half.png 50\n");
    EXPECT_EQ(WidthOf(Read("whole.png")), 794) << "210 mm at 96 dots an inch.";
    EXPECT_EQ(WidthOf(Read("half.png")), 397);
}

// Overall results and Preferences both have a button cmdClose.
TEST_F(LookingCommands, NameIsThatOfTheFormShownLast)
{
    const auto run = RunOnSheet("menu mnuSum\nmenu mnuLogoT\nclick cmdClose\nforms\nclick cmdClose\nforms\n");
    EXPECT_NE(run.Text().find(R"({"forms":["mdiBack","frmCompaction","frmSummary"]})"), std::string::npos)
        << run.Text();
    EXPECT_EQ(run.Last(), R"({"forms":["mdiBack","frmCompaction"]})");
}

TEST_F(LookingCommands, PictureBoxesTellTheirItems)
{
    EXPECT_EQ(RunOnSheet("picture picGraph\n").Text(), "{\"box\":[0,0,5450,4000],\"width\":2,\"colour\":\"#000000\"}\n")
        << "Before the curve stands the empty frame.";
    EXPECT_NE(RunOnSheet("click cmdCal\nclick cmdOMC\npicture picgraph1\n").Text().find("{\"text\":"),
              std::string::npos)
        << "The axis titles stand on the outer box.";
}

}  // namespace
}  // namespace terravane::testing
