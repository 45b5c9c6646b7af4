/// The default printer: a surface whose pages are recorded and sent off together at the end of the job.
#pragma once

#include <string>
#include <vector>

#include "drawing/display_list.h"
#include "drawing/drawing_surface.h"
#include "program/surroundings.h"

namespace terravane {

inline constexpr int kPaperA4 = 9;
enum class Orientation { Portrait = 1, Landscape = 2 };

/// A4 in twips; the whole sheet is the scale, the same on screen, in a PDF and on paper.
inline constexpr double kA4Short = 11906;
inline constexpr double kA4Long = 16838;

/// Orientation, fonts and pens last from job to job until they are set again. A copy draws without touching
/// the original.
class Printer : public DrawingSurface {
  public:
    Printer();

    /// What the present page is called where it has no number; the next page has one again.
    std::string PageLabel;

    int PaperSize() const { return paperSize_; }
    /// A4 is the only paper; any other size is error 380 "Invalid property value".
    void SetPaperSize(int size);
    Orientation PageOrientation() const { return orientation_; }
    /// Turns the present page and those after it.
    void SetOrientation(Orientation orientation);

    /// Where the next EndDoc sends its pages, under which title.
    void SetTarget(PrintTarget target, std::string title);

    void NewPage();
    /// Ends the present page and sends the job. Without a target the pages are dropped: a job nobody waits
    /// for. The pages are gone also where the target fails.
    void EndDoc();

    /// Drops what was drawn of a job that failed half-way.
    void KillDoc();

    /// The pages ended so far and the present one.
    std::vector<DisplayList> Pages() const;

  private:
    DisplayList PresentPage() const;

    int paperSize_ = kPaperA4;
    Orientation orientation_ = Orientation::Portrait;
    std::vector<DisplayList> ended_;
    PrintTarget target_;
    std::string title_;
};

}  // namespace terravane
