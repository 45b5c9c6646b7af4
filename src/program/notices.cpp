#include "program/notices.h"

#include <algorithm>
#include <utility>

namespace terravane {

void Notices::Tell(Notice notice)
{
    if (isHeld_) return waiting_.push_back(std::move(notice));
    Put(std::move(notice));
    changes_.Announce();
}

void Notices::Put(Notice notice)
{
    notice.at = now_();
    notice.isOpen = true;
    notice.number = ++lastNumber_;
    if (!notice.subject.empty()) {
        for (Notice& earlier : told_) earlier.isOpen = earlier.isOpen && earlier.subject != notice.subject;
    }
    told_.push_back(std::move(notice));
    if (told_.size() > kKept) told_.pop_front();
}

template <class Which>
void Notices::Close(Which which)
{
    bool hasChanged = false;
    for (Notice& notice : told_) {
        if (!notice.isOpen || !which(notice)) continue;
        notice.isOpen = false;
        hasChanged = true;
    }
    if (hasChanged) changes_.Announce();
}

void Notices::Answer(int number)
{
    Close([number](const Notice& notice) { return notice.number == number; });
}

void Notices::Settle(std::string_view subject)
{
    std::erase_if(waiting_, [subject](const Notice& notice) { return notice.subject == subject; });
    Close([subject](const Notice& notice) { return notice.subject == subject; });
}

void Notices::SettleForm(std::string_view form)
{
    Close([form](const Notice& notice) { return notice.place.form == form; });
}

const Notice* Notices::Current() const
{
    const Notice* loudest = nullptr;
    for (const Notice& notice : told_) {
        if (notice.isOpen && (!loudest || notice.kind >= loudest->kind)) loudest = &notice;
    }
    return loudest;
}

void Notices::Release(bool hasSucceeded)
{
    isHeld_ = false;
    const auto waiting = std::exchange(waiting_, {});
    for (const Notice& notice : waiting) {
        if (hasSucceeded || notice.kind != NoticeKind::Information) Tell(notice);
    }
}

}  // namespace terravane
