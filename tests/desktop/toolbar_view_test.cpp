// The icons of a toolbar's buttons: what the control tells, whatever its captions say.
#include <QToolBar>
#include <QToolButton>

#include <gtest/gtest.h>

#include "controls/furniture.h"
#include "desktop/bindings.h"
#include "desktop/looks.h"
#include "unit/controls/plain_form.h"

namespace terravane {
namespace {

struct BarForm : PlainForm {
    Toolbar bar{*this,
                "bar",
                {{.caption = "Save File"},
                 {.caption = "Keep", .icon = Icon::Save},
                 {.caption = "Paper", .icon = Icon::Print},
                 {.caption = "Away", .icon = Icon::Close}}};
};

qint64 KeyOf(const QIcon& icon)
{
    return icon.cacheKey();
}

TEST(ToolbarView, ShowsTheIconThatTheControlTellsWhateverTheCaptionSays)
{
    BarForm form;
    QToolBar view;
    const Subscription binding = Bind(form.bar, view);
    const auto buttons = view.findChildren<QToolButton*>(QString(), Qt::FindDirectChildrenOnly);
    std::vector<QIcon> icons;
    for (const QToolButton* button : buttons)
        if (!button->text().isEmpty()) icons.push_back(button->icon());
    ASSERT_EQ(icons.size(), 4U);
    EXPECT_TRUE(icons[0].isNull()) << "A caption that begins with \"Save\" is no icon.";
    EXPECT_EQ(KeyOf(icons[1]), KeyOf(looks::SignIcon(looks::Sign::Save)));
    EXPECT_EQ(KeyOf(icons[2]), KeyOf(looks::SignIcon(looks::Sign::Page)));
    EXPECT_EQ(KeyOf(icons[3]), KeyOf(looks::SignIcon(looks::Sign::Cross)));
}

}  // namespace
}  // namespace terravane
