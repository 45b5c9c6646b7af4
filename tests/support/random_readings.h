/// Readings as they are typed by a hand that takes care, by one in haste and by one that hits anything. A seed gives
/// the same texts on every machine.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <random>
#include <string>
#include <string_view>

#include "runtime/numbers.h"
#include "runtime/text.h"

namespace terravane::support {

/// Careful  readings as a test gives them, in as many columns as there was material for
/// Hasty    the same with a slip here and there
/// Wild     slips alone
enum class Hand { Careful, Hasty, Wild };
inline constexpr std::array kHands{Hand::Careful, Hand::Hasty, Hand::Wild};
inline constexpr std::array<std::string_view, 3> kHandNames{"careful", "hasty", "wild"};

/// What gets into a cell by mistake. No apostrophe: a text with one can't be saved.
inline constexpr std::array<std::string_view, 40> kSlips{
    "",       "",    " ",     "   ",   "0",      "-0",     "0.0",      ".",    "-",           "+5",
    "-12.5",  "1e2", "1e300", "-1E-9", "1,234",  "12,5",   "12..5",    "--3",  "0x1F",        "&HFF",
    "85.32g", "25%", "/",     "\"",    "a|b",    "NULL",   "[sum_LL]", "; --", "*",           "?",
    "#4",     "dry", "N/A",   "๒๕.๓",  "ดินลูกรัง", "๓๔ กก.", "ñ é ß",    "🪨", "99999999999", "0.00000001",
};

inline constexpr std::array<std::string_view, 8> kWords{
    "Soil 12", "ดินเดิม", "กม. 12+400", "A&B Lab", "ทล. ๓๔ (ซ้าย)", "B-7/2", "\"No. 3\"", "ห้องทดลอง 1",
};

class RandomReadings {
  public:
    RandomReadings(unsigned seed, Hand hand) : random_(seed), hand_(hand) {}

    Hand Kind() const { return hand_; }

    int Pick(int below) { return static_cast<int>(random_() % static_cast<unsigned>(below)); }
    bool Chance(int percent) { return Pick(100) < percent; }
    template <class Table>
    auto OneOf(const Table& table)
    {
        return table[static_cast<std::size_t>(Pick(static_cast<int>(table.size())))];
    }

    /// Whether the next text is a slip.
    bool Slips() { return hand_ == Hand::Wild || (hand_ == Hand::Hasty && Chance(12)); }

    std::string Number(double low, double high, int decimals)
    {
        const double share = Pick(100001) / 100000.0;
        const std::string places(static_cast<std::size_t>(decimals), '0');
        return Format(low + (high - low) * share, decimals == 0 ? "0" : "0." + places);
    }

    /// At most `units` long in UTF-16, as columns count.
    std::string Word(int units) { return Cut(std::string(OneOf(kWords)), units); }

    std::string Slip(int units)
    {
        switch (Pick(8)) {
            case 0:
                return Full("ก", units);
            case 1:
                return Full("🪨", units);
            case 2:
                return Full("9", units);
            case 3:
                return Cut(Number(-1000, 1000, 4), units);
            default:
                return Cut(std::string(OneOf(kSlips)), units);
        }
    }

  private:
    static std::string Cut(std::string text, int units)
    {
        while (ToUtf16(text).size() > static_cast<std::size_t>(units)) text = Left(text, CharacterCount(text) - 1);
        return text;
    }

    /// As long as the column takes.
    static std::string Full(std::string_view character, int units)
    {
        std::string text;
        for (int i = 0; i < units; ++i) text += character;
        return Cut(std::move(text), units);
    }

    std::mt19937 random_;
    Hand hand_;
};

}  // namespace terravane::support
