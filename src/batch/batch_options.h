/// What a run is asked to do.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "batch/choices.h"
#include "laboratory/current_test.h"
#include "runtime/dates.h"

namespace terravane {

/// What --curve, --smooth and --correct said; nothing where they were not given.
struct GivenChoices {
    std::optional<std::string_view> curve;
    bool isSmooth = false;
    std::optional<std::array<bool, 3>> corrects;
};

struct BatchOptions {
    std::vector<std::string> arguments;  // project files and folders
    std::string outputFolder;            // empty: beside each project
    std::vector<std::string> tests;      // keys; none: all
    std::vector<std::string> materials;  // keys; none: both
    bool wantsSummary = false;
    bool isOneFile = false;
    std::string csv, json, manifest, notes;  // paths; empty: none
    bool hasStrictNotes = false;             // a note that is more than information counts as a stale result
    bool isAsSaved = false;
    bool posts = false;
    bool checks = false;
    bool resumes = false;
    bool followsLinks = false;  // of folders below outputFolder
    int jobs = 1;
    std::string brand;          // folder; empty: what a new installation starts with
    Moment today{};             // noon of the day that the forms see
    bool isTodayGiven = false;  // by option
    GivenChoices given;
    std::vector<std::string> workerArguments;  // those that start this program as a worker of the same run

    bool Wants(std::string_view test) const;
    bool WantsMaterial(std::string_view material) const;
    bool WantsNotes() const { return hasStrictNotes || !notes.empty(); }
    /// The choices that the sheets' commands are pressed with.
    Choices PressedChoices() const;
    /// What makes two runs give the same outputs, as one text.
    std::string Fingerprint() const;
};

}  // namespace terravane
