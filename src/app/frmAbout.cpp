#include "app/frmAbout.h"

#include <algorithm>

#include "store/brand_pictures.h"

namespace terravane {

namespace {

/// The road of the first cover.
std::shared_ptr<const Picture> RoadPicture()
{
    const auto pictures = FirstBrandPictures();
    const auto road = std::ranges::find(pictures, kCoverLogo, &BrandPicture::name);
    return ReadPicture(std::string(road->name), Bytes(road->content.begin(), road->content.end()));
}

}  // namespace

frmAbout::frmAbout(Program& owner) : Form(owner, "frmAbout", "About Terravane"), program(owner)
{
    imgRoad.SetContent(RoadPicture());
}

}  // namespace terravane
