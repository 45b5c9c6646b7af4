/// A form shown by its layout: makes a widget for every place, binds it to its control, forwards keys and focus.
#pragma once

#include <QWidget>
#include <functional>
#include <unordered_map>

#include "controls/form.h"
#include "desktop/bindings.h"
#include "desktop/layout.h"
#include "program/notices.h"

class QBoxLayout;
class QFormLayout;

namespace terravane {

class FormView : public QWidget {
  public:
    FormView(Form& form, const Place& layout, QWidget* parent = nullptr);
    ~FormView() override;

    Form& Shown() const { return form_; }
    /// Ends all traffic with the form, which may go away from now on.
    void Unbind();

    /// What the user types or chooses in a control, and a command that was pressed with mouse or key.
    std::function<void(const Control& control)> TypedIn;
    std::function<void(Control& command)> CommandPressed;

    /// Shows the tab that a control stands on.
    void BringToFront(const Control& control);
    /// Brings the place to the front and stands the focus there; a cell that is typed is opened.
    void LeadTo(const NoticePlace& place);
    /// Stands the focus in the first typed place that is empty, in the order of the layout; of a grid trial by trial.
    void FocusFirstEmpty();

    /// The widget of a control, whose page is made if it was not; nullptr where it has no place.
    QWidget* ViewOf(const Control& control);
    /// The same; nullptr also where it stands on a page that was not looked at yet.
    QWidget* MadeViewOf(const Control& control) const;
    /// A page of tabs was made: a sheet makes one when it is first looked at, and opens the sooner.
    std::function<void()> PageMade;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    // Each widget is made in the parent that it stays in: a subtree that moves is styled anew.
    void Add(QBoxLayout& box, const Place& place);
    void AddAll(QBoxLayout& box, const std::vector<Place>& parts);
    void AddFieldRow(QFormLayout& fields, const Place& place);
    QWidget* MakeBox(const Place& place, QWidget& parent);
    QWidget* MakePair(const Place& place, QWidget& parent);
    QWidget* MakeGroup(const Place& place, QWidget& parent);
    QWidget* MakeTabs(const Place& place, QWidget& parent);
    void FillPage(std::size_t number);
    QWidget* MakeField(const Place& place, QWidget& parent);
    QWidget* MakeResult(const Place& place, QWidget& parent);
    QWidget* MakeBanner(const Place& place, QWidget& parent);
    void NamePlots(const Place& page);
    void TellWhatDraws(const Place& page, const std::vector<const Place*>& plots);
    QWidget* MakePlot(const Place& place, QWidget& parent);
    QWidget* MakePicture(const Place& place, QWidget& parent);
    QWidget* MakeGrid(class TextGrid& grid, QWidget& parent);
    QWidget* MakeImage(class Image& image, QWidget& parent);
    QWidget* MakeControl(Control& control, QWidget& parent);
    QWidget* Make(const Place& place, QWidget& parent);

    struct WidgetMaker;
    template <class View, class Kind>
    QWidget* MakeBound(Kind& control, QWidget& parent);

    void Watch(Control& control, QWidget& view);
    void ListenForTyping(const Control& control, QWidget& view);
    bool FocusIfEmpty(Control& control);
    bool IsInFront(const Control& control) const;
    bool TakesKey(QObject& watched, Control& control, class QKeyEvent& press);
    void PressFrame(const QObject& watched);
    void FollowFocus();

    /// A page of tabs; the place is the layout's, which outlives every window.
    struct Page {
        const Place* place;
        QWidget* page;
        std::vector<std::string> names;  // of the controls on it
        bool isMade = false;
    };

    Form& form_;
    std::vector<Page> pages_;
    std::unordered_map<const Control*, QWidget*> views_;
    std::unordered_map<const QObject*, Control*> controls_;
    std::unordered_map<const QObject*, Frame*> frames_;  // that hear a press
    std::vector<std::string> placed_;                    // in the order of the layout
    Bindings bindings_;
};

}  // namespace terravane
