/// The running program without its windows: the module-level state, the forms that are loaded, the
/// surroundings they ask, and the one place where a failing command is caught.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "controls/form.h"
#include "controls/subscription.h"
#include "jet/connection.h"
#include "jet/recordset.h"
#include "laboratory/current_test.h"
#include "program/folders.h"
#include "program/listener.h"
#include "program/notices.h"
#include "program/printer.h"
#include "program/surroundings.h"
#include "runtime/file_system.h"

namespace terravane {

class Program;
using FormMaker = std::function<std::unique_ptr<Form>(Program&)>;

enum class Modality { Modeless, Modal };

class Program : public EventBoundary, private jet::SaveListener {
  public:
    /// applicationPath  the folder of the program's own files, as the system names it
    /// brandPath        another folder for the brand store, with its mark at the end; empty: that in the program's
    Program(Surroundings& surroundings, FileSystem& files, std::string applicationPath, std::string brandPath = {});
    ~Program() override;

    Surroundings& Ask() const { return surroundings_; }
    FileSystem& Files() const { return files_; }

    /// Module-level state, as all forms share it.
    std::string AppFolder;           // the program's folder with a mark at its end; set by mdiBack at load
    std::string CurrentProjectPath;  // full path of the project file; empty until one is chosen
    Test CurrentTest = Test::None;
    Material CurrentMaterial = Material::None;
    std::string BrandFolder;  // the brand store's folder with a mark at its end; each form computes it anew at load
    jet::Connection ProjectConnection;
    jet::Connection BrandConnection;
    jet::Recordset CurrentRecordset;  // of the last query: a trace, who asked has the rows
    std::string CurrentSql;           // the last statement: a trace too
    std::string ApproverName;         // found last; stays where a later search finds none
    Printer printer;

    /// What is said without a box. What a command tells stands here when it has ended.
    Notices notices;

    const std::string& ApplicationPath() const { return applicationPath_; }
    /// The brand store's folder, worked out from the application path.
    std::string BrandFolderNow() const;

    /// Forms by name. A maker is set once, at start.
    void AddForm(const std::string& name, FormMaker maker);
    /// The form, made and loaded if it is not. A form whose load event fails is not left loaded. Error 424
    /// where no form has the name.
    Form& Load(std::string_view name);
    /// The form if it is loaded, else nullptr.
    Form* Loaded(std::string_view name) const;
    /// The same as a form of kind T; error 424 where it is not loaded or another kind.
    template <class T>
    T& Get(std::string_view name) const;
    /// Loads the form and puts it on top of those shown. A modal form returns at once too: what comes after
    /// its closing is its own unload event's business.
    Form& Show(std::string_view name, Modality modality = Modality::Modeless);
    /// Takes a form away with its unload event; nothing happens where it is not loaded. It stays alive until
    /// the running command has ended.
    void Unload(std::string_view name);

    /// All loaded forms in the order of loading, and those shown, the one shown last at the end.
    std::vector<Form*> LoadedForms() const;
    struct ShownForm {
        Form* form;
        Modality modality;
    };
    const std::vector<ShownForm>& ShownForms() const { return shown_; }
    /// Whether a command runs now.
    bool IsRunning() const { return depth_ > 0; }
    /// From here on the listener hears what the program announces, until it is taken off; it outlives that.
    void Listen(ProgramListener& listener) { listeners_.push_back(&listener); }
    void StopListening(const ProgramListener& listener) { std::erase(listeners_, &listener); }
    /// Who is to hear of the saves of a project that is opened; nullptr where nobody listens.
    jet::SaveListener* ListenerOfSaves() { return listeners_.empty() ? nullptr : this; }
    /// To be told by whoever makes project files.
    void TellProjectMade(std::string_view path, std::string_view source = {}) const;

    /// Runs the listener when a form was loaded, shown or unloaded.
    Subscription ShowForms(std::function<void()> listener);

    /// The event boundary: runs a command, sends the stores' changes to their files, tells what failed, in a notice and
    /// to the surroundings.
    void Run(std::string_view event, const std::function<void()>& handler) override;
    /// Sends the stores' changes to their files now. Run does it at the end of every command, also a failed
    /// one.
    void FlushStores();

  private:
    void FileSaved(const jet::SavedFile& saved) override;
    bool RunOutermost(const std::string& event, const std::function<void()>& step);
    [[noreturn]] static void FailMissing(std::string_view name);

    Surroundings& surroundings_;
    FileSystem& files_;
    std::string applicationPath_, brandPath_;
    std::map<std::string, FormMaker, std::less<>> makers_;
    std::vector<std::unique_ptr<Form>> loaded_;
    std::vector<std::unique_ptr<Form>> unloaded_;  // until the running command has ended
    std::vector<ShownForm> shown_;
    Announcement formsChanged_;
    std::vector<ProgramListener*> listeners_;
    int depth_ = 0;
};

template <class T>
T& Program::Get(std::string_view name) const
{
    if (auto* form = dynamic_cast<T*>(Loaded(name))) return *form;
    FailMissing(name);
}

}  // namespace terravane
