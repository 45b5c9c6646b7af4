#include "program/program.h"

#include <algorithm>
#include <exception>
#include <optional>
#include <ranges>
#include <utility>

#include "program/failure_notice.h"
#include "runtime/text.h"

namespace terravane {

Program::Program(Surroundings& surroundings, FileSystem& files, std::string applicationPath, std::string brandPath)
    : notices([&surroundings] { return surroundings.Now(); }),
      surroundings_(surroundings),
      files_(files),
      applicationPath_(std::move(applicationPath)),
      brandPath_(std::move(brandPath))
{}

Program::~Program() = default;

std::string Program::BrandFolderNow() const
{
    return brandPath_.empty() ? BrandFolderIn(applicationPath_) : brandPath_;
}

void Program::AddForm(const std::string& name, FormMaker maker)
{
    makers_[name] = std::move(maker);
}

Form& Program::Load(std::string_view name)
{
    if (Form* present = Loaded(name)) return *present;
    const auto maker = makers_.find(name);
    if (maker == makers_.end()) FailMissing(name);
    loaded_.push_back(maker->second(*this));
    Form& form = *loaded_.back();
    for (ProgramListener* listener : listeners_) listener->FormOpened(form);
    try {
        form.Form_Load();
    } catch (...) {
        Unload(name);
        throw;
    }
    formsChanged_.Announce();
    return form;
}

Form* Program::Loaded(std::string_view name) const
{
    const auto found = std::ranges::find_if(loaded_, [name](const auto& form) { return SameName(form->Name(), name); });
    return found == loaded_.end() ? nullptr : found->get();
}

Form& Program::Show(std::string_view name, Modality modality)
{
    Form& form = Load(name);
    std::erase_if(shown_, [&form](const ShownForm& shown) { return shown.form == &form; });
    shown_.push_back({&form, modality});
    formsChanged_.Announce();
    form.Form_Activate();
    return form;
}

void Program::Unload(std::string_view name)
{
    const auto found = std::ranges::find_if(loaded_, [name](const auto& form) { return SameName(form->Name(), name); });
    if (found == loaded_.end()) return;
    unloaded_.push_back(std::move(*found));
    loaded_.erase(found);
    Form& form = *unloaded_.back();
    std::erase_if(shown_, [&form](const ShownForm& shown) { return shown.form == &form; });
    form.Form_Unload();
    for (ProgramListener* listener : listeners_) listener->FormClosed(form);
    notices.SettleForm(form.Name());
    formsChanged_.Announce();
    if (depth_ == 0) unloaded_.clear();
}

std::vector<Form*> Program::LoadedForms() const
{
    std::vector<Form*> forms;
    for (const auto& form : loaded_) forms.push_back(form.get());
    return forms;
}

Subscription Program::ShowForms(std::function<void()> listener)
{
    return formsChanged_.Listen(std::move(listener));
}

void Program::Run(std::string_view event, const std::function<void()>& handler)
{
    if (depth_ > 0) return handler();
    const std::string name(event);
    for (const auto& form : loaded_) form->ForgetAddressed();
    notices.Settle(name);  // tried again: what was said of it before is moot
    notices.Hold();
    for (ProgramListener* listener : listeners_) listener->CommandBegan(name);
    const bool hasRun = RunOutermost(name, handler);
    const bool isKept = RunOutermost(name, [this] { FlushStores(); });
    for (ProgramListener* listener : listeners_) listener->CommandEnded(name, hasRun && isKept);
    notices.Release(hasRun && isKept);
    unloaded_.clear();
}

void Program::FileSaved(const jet::SavedFile& saved)
{
    for (ProgramListener* listener : listeners_) listener->ProjectSaved(saved);
}

void Program::TellProjectMade(std::string_view path, std::string_view source) const
{
    for (ProgramListener* listener : listeners_) listener->ProjectMade(path, source);
}

/// False where it failed. Telling may wait for a person, and meanwhile other commands may run, such as a clock's: each
/// is an outermost one, and what the failed command unloaded lives on until it was told.
bool Program::RunOutermost(const std::string& event, const std::function<void()>& step)
{
    std::optional<RuntimeError> failure;
    ++depth_;
    try {
        step();
    } catch (const RuntimeError& error) {
        failure = error;
    } catch (const std::exception& unexpected) {
        failure = RuntimeError(error::kInternal, unexpected.what());
    }
    --depth_;
    if (!failure) return true;
    const auto unloaded = std::exchange(unloaded_, {});
    notices.Tell(FailureNotice({event, *failure, Loaded(Failed::FormOf(event)), CurrentTest, CurrentSql}));
    surroundings_.Fail(event, *failure);
    return false;
}

namespace {

/// What can't be written is dropped: the form still shows it and the file keeps what it had. Kept, it would
/// make every later command fail for the sake of this one.
void FlushOrDrop(jet::Connection& connection)
{
    try {
        connection.Flush();
    } catch (...) {
        connection = jet::Connection();
        throw;
    }
}

}  // namespace

/// A store that can't be written keeps no other from being written.
void Program::FlushStores()
{
    std::exception_ptr first;
    for (jet::Connection* const store : {&ProjectConnection, &BrandConnection}) {
        try {
            FlushOrDrop(*store);
        } catch (...) {
            if (!first) first = std::current_exception();
        }
    }
    if (first) std::rethrow_exception(first);
}

void Program::FailMissing(std::string_view name)
{
    throw RuntimeError(error::kObjectRequired, "There is no open form of that name: " + std::string(name));
}

}  // namespace terravane
