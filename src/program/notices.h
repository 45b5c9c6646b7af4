/// What the program has to say without a box: that a test was saved, what failed and where, what waits for an answer.
/// Windows show the notice that counts most in a bar, scripts and tests read them here. Knows no window.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "controls/subscription.h"
#include "runtime/dates.h"

namespace terravane {

/// How long a notice stays, and how loud it is: information leaves by itself, the others stay until they are answered
/// or settled.
enum class NoticeKind { Information, Attention, Failure };

/// What a notice leads to: a control of a form, or a cell of it where the control is a grid. No control: nowhere.
struct NoticePlace {
    std::string form = {}, control = {};
    int row = -1, column = -1;

    bool IsGiven() const { return !control.empty(); }
    bool IsCell() const { return row >= 0; }
};

/// A button of a notice: what it is called and what it does. Pressing it answers the notice.
struct NoticeAction {
    std::string caption;
    std::function<void()> act;
};

/// sentence  for a technician, one line
/// details   what whoever looks after the program wants to know: number, event, statement; may be empty
/// subject   what the notice is about, "frmCompaction.tblMenu_ButtonClick": a later one of the same subject takes its
///           place, and Settle takes it away
struct Notice {
    NoticeKind kind = NoticeKind::Information;
    std::string sentence;
    std::string details = {};
    NoticePlace place = {};
    std::string subject = {};
    std::vector<NoticeAction> actions = {};

    int number = 0;  // from 1, given by Tell; the same when the words of a subject change
    Moment at{};     // when it was told, given by Tell
    bool isOpen = true;
};

class Notices {
  public:
    /// Older ones are forgotten.
    static constexpr std::size_t kKept = 50;

    explicit Notices(std::function<Moment()> now) : now_(std::move(now)) {}

    /// While a command runs the notice waits for its end.
    void Tell(Notice notice);
    /// The user has seen it.
    void Answer(int number);
    /// What was said of that subject does not hold any more.
    void Settle(std::string_view subject);
    /// Those that came from the form lead nowhere once it is closed.
    void SettleForm(std::string_view form);

    /// The one to show: of those that are open the loudest, of these the latest; nullptr where none is open.
    const Notice* Current() const;
    /// The oldest first.
    const std::deque<Notice>& Told() const { return told_; }

    /// From here on notices wait.
    void Hold() { isHeld_ = true; }
    /// They are told now. Of a command that failed the information is dropped: "saved" would not be true.
    void Release(bool hasSucceeded);

    /// Runs the listener when something was told, answered or settled.
    Subscription Show(std::function<void()> listener) { return changes_.Listen(std::move(listener)); }

  private:
    void Put(Notice notice);
    template <class Which>
    void Close(Which which);

    std::function<Moment()> now_;
    std::deque<Notice> told_;
    std::vector<Notice> waiting_;
    bool isHeld_ = false;
    int lastNumber_ = 0;
    Announcement changes_;
};

}  // namespace terravane
