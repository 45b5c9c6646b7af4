#include "journal/block.h"

#include <algorithm>
#include <cctype>

#include "runtime/numbers.h"
#include "runtime/text.h"

namespace terravane {

namespace {

bool NeedsQuotes(std::string_view text)
{
    return text.find_first_of("\t\r\n\"") != std::string_view::npos;
}

std::string Quoted(std::string_view text)
{
    std::string quoted = "\"";
    for (const char letter : text) quoted.append(letter == '"' ? 2 : 1, letter);
    return quoted + '"';
}

/// Reads a block letter by letter.
class BlockReader {
  public:
    explicit BlockReader(std::string_view text) : text_(text) {}

    Block Read()
    {
        Block block;
        while (!text_.empty()) {
            std::vector<std::string>& row = block.emplace_back();
            do row.push_back(ReadCell());
            while (Take('\t'));
            TakeLineEnd();
        }
        return block;
    }

  private:
    std::string ReadCell() { return Take('"') ? ReadQuoted() : ReadPlain(); }

    std::string ReadPlain()
    {
        const auto end = std::min(text_.find_first_of("\t\r\n"), text_.size());
        std::string cell(text_.substr(0, end));
        text_.remove_prefix(end);
        return cell;
    }

    std::string ReadQuoted()
    {
        std::string cell;
        while (!text_.empty()) {
            if (Take('"') && !text_.starts_with('"')) break;
            cell.push_back(text_.front());
            text_.remove_prefix(1);
        }
        return cell + ReadPlain();
    }

    bool Take(char letter)
    {
        if (!text_.starts_with(letter)) return false;
        text_.remove_prefix(1);
        return true;
    }

    void TakeLineEnd()
    {
        Take('\r');
        Take('\n');
    }

    std::string_view text_;
};

constexpr std::u16string_view kSeparators = u",\u00A0\u202F\u2009'";

bool IsDigit(char16_t letter)
{
    return letter >= u'0' && letter <= u'9';
}

std::u16string WithPlainDigits(std::u16string text)
{
    for (char16_t& letter : text)
        if (letter >= u'๐' && letter <= u'๙') letter = static_cast<char16_t>(u'0' + (letter - u'๐'));
    return text;
}

/// "12,345,678": one to three digits, then groups of three behind one separator, always the same.
bool IsGrouped(std::u16string_view whole)
{
    const auto first = whole.find_first_of(kSeparators);
    if (first == std::u16string_view::npos || first == 0 || first > 3) return false;
    const char16_t separator = whole[first];
    for (std::size_t i = 0; i < whole.size(); ++i) {
        const bool isSeparator = i >= first && (i - first) % 4 == 0;
        if (isSeparator ? whole[i] != separator : !IsDigit(whole[i])) return false;
    }
    return (whole.size() - first) % 4 == 0;
}

std::u16string WithoutSeparators(std::u16string_view text)
{
    const std::size_t sign = text.starts_with(u'-') || text.starts_with(u'+') ? 1 : 0;
    const std::u16string_view whole = text.substr(sign, text.find(u'.') - sign);
    if (!IsGrouped(whole)) return std::u16string(text);
    std::u16string plain(text.substr(0, sign));
    std::ranges::copy_if(whole, std::back_inserter(plain), IsDigit);
    return plain.append(text.substr(sign + whole.size()));
}

}  // namespace

std::string BlockText(const Block& block)
{
    std::string text;
    for (const auto& row : block) {
        for (std::size_t column = 0; column < row.size(); ++column) {
            if (column > 0) text += '\t';
            text += NeedsQuotes(row[column]) ? Quoted(row[column]) : row[column];
        }
        text += '\n';
    }
    return text;
}

Block ReadBlock(std::string_view text)
{
    return BlockReader(text).Read();
}

std::string PlainNumber(std::string_view text)
{
    const std::string plain = ToUtf8(WithoutSeparators(WithPlainDigits(ToUtf16(Trim(text)))));
    return IsNumber(plain) ? plain : std::string(text);
}

}  // namespace terravane
