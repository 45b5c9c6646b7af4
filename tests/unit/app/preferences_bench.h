/// The preferences form over a brand store on a disk in memory, as the frame's menu opens it.
#pragma once

#include <string>
#include <vector>

#include "app/frmPreferences.h"
#include "unit/app/app_bench.h"

namespace terravane::testing {

inline const std::string kBrand = "/home/BrandList/";

/// A GIF 300 wide and 200 high, as far as its size; its content tells it whatever its name says.
inline const Bytes kGif{'G', 'I', 'F', '8', '9', 'a', 0x2C, 0x01, 0xC8, 0x00, 0, 0, 0};
/// A bitmap 100 wide and 400 high.
inline const Bytes kBitmap{'B', 'M', 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 40, 0, 0, 0, 100, 0, 0, 0, 0x90, 1, 0, 0};

struct PreferencesBench : AppBench {
    PreferencesBench() { ShowFrame(); }

    frmPreferences& OpenForm(int tab = 0)
    {
        const char* entries[] = {"mnuLogoT", "mnuLogoC", "mnuOpr"};
        Frame().Get<MenuEntry>(entries[tab]).Press();
        return program.Get<frmPreferences>("frmPreferences");
    }

    /// A column of all rows of a brand table, from the file.
    std::vector<std::string> BrandColumn(const std::string& table, const std::string& column)
    {
        jet::Connection connection;
        connection.Open(files, kBrand + "logo.mdb");
        jet::Recordset rows = connection.Execute("SELECT * from " + table + "'");
        std::vector<std::string> texts;
        for (; !rows.Eof(); rows.MoveNext()) texts.push_back(rows.Fields(column));
        return texts;
    }
    std::string StoredName(const std::string& column) { return BrandColumn("LOGO", column).front(); }

    void Choose(CommandButton& open, const std::string& path)
    {
        surroundings.paths.push_back(path);
        open.Press();
    }

    /// The one failure that was shown, which is taken as seen.
    int Failure()
    {
        if (surroundings.failures.size() != 1) return -static_cast<int>(surroundings.failures.size());
        const int number = surroundings.failures.front().Number();
        surroundings.failures.clear();
        return number;
    }
};

/// A person typed into the grid as at the keyboard: the name's cell clicked, Enter, the position's cell clicked, Enter.
inline void TypePerson(frmPreferences& form, int row, const std::string& name, const std::string& position)
{
    form.mshPerson.PressMouse(MouseButton::Left, row, person::kName);
    form.txtData.Type(name);
    form.txtData.PressKey(Key::Enter);
    form.mshPerson.PressMouse(MouseButton::Left, row, person::kPosition);
    form.cboList.Type(position);
    form.cboList.PressKey(Key::Enter);
}

}  // namespace terravane::testing
