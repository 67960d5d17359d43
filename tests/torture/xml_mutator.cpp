#include "xml_mutator.h"

#include <algorithm>
#include <cstring>
#include <random>
#include <string>
#include <string_view>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t mostSize);

namespace q7test
{
namespace
{

struct Range {
    std::size_t begin;
    std::size_t end;
};

const std::string fillings[] = {"0",
                                "-1",
                                "2147483648",
                                "999999999999999999999",
                                "1e309",
                                "0.005",
                                "1234567.89",
                                ".",
                                ",",
                                "NaN",
                                "",
                                " ",
                                "\n\t\r",
                                "&amp;&lt;&#233;",
                                "&#0;",
                                "&#x10FFFF;",
                                "&none;",
                                "]]>",
                                "<![CDATA[<x>&]]>",
                                "<!-- -->",
                                "<?x y?>",
                                "<a/><b>c</b>",
                                "ção €",
                                "\xE7\xE3o",
                                "\xF0\x9F\x98\x80",
                                "\xED\xA0\x80",
                                "\xEF\xBB\xBF",
                                "\xC0\x80",
                                std::string(1, '\0'),
                                "20240230T256199-99:99",
                                std::string(70, 'W'),
                                std::string(3000, '7'),
                                std::string(300, ' '),
                                "<!DOCTYPE x [<!ENTITY e 'v'>]>"};

const std::string prologues[] = {"<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>",
                                 "<?xml version=\"1.0\" encoding=\"UTF-16\"?>",
                                 "<?xml version=\"1.1\" encoding=\"x\"?>", "\xFF\xFE",
                                 "\xEF\xBB\xBF"};

class Mutation
{
public:
    Mutation(std::string& xml, unsigned seed) : m_xml(xml), m_random(seed) {}

    void apply()
    {
        const Range one = element();
        const Range other = element();
        const std::string moved = m_xml.substr(one.begin, one.end - one.begin);
        switch (upTo(7)) {
        case 0: // doubled, or moved into another place
            m_xml.insert(other.begin, moved);
            break;
        case 1:
            m_xml.erase(one.begin, one.end - one.begin);
            break;
        case 2:
            m_xml.replace(other.begin, other.end - other.begin, moved);
            break;
        case 3:
        case 4:
            fill(one);
            break;
        case 5: // many
            for (int i = 1 << upTo(7); i > 0 && m_xml.size() < 200'000; --i)
                m_xml.insert(one.begin, moved);
            break;
        case 6:
            m_xml.resize(upTo(m_xml.size() + 1)); // cut off
            break;
        default:
            m_xml.replace(0, upTo(2) * std::min(m_xml.find('>') + 1, m_xml.size()),
                          prologues[upTo(std::size(prologues) - 1)]);
        }
    }

private:
    std::size_t upTo(std::size_t most)
    {
        return std::uniform_int_distribution<std::size_t>(0, most)(m_random);
    }

    /** An element, from its start tag to its end tag, or to the end of the text. */
    Range element()
    {
        const std::size_t begin = m_xml.find('<', upTo(m_xml.size()));
        if (begin == std::string::npos)
            return {0, 0};
        const std::size_t nameEnd = std::min(m_xml.find_first_of(" />", begin), m_xml.size());
        const std::string closing = "</" + m_xml.substr(begin + 1, nameEnd - begin - 1) + '>';
        const std::size_t end = m_xml.find(closing, nameEnd);
        const std::size_t tagEnd = std::min(m_xml.find('>', begin), m_xml.size() - 1) + 1;
        return {begin, end == std::string::npos ? tagEnd : end + closing.size()};
    }

    /** Another text for an element, or another value for one of its attributes. */
    void fill(Range range)
    {
        const char opening = upTo(3) == 0 ? '"' : '>';
        const char closing = opening == '"' ? '"' : '<';
        const std::size_t begin = m_xml.find(opening, range.begin);
        if (begin == std::string::npos)
            return;
        const std::size_t end = std::min(m_xml.find(closing, begin + 1), m_xml.size());
        m_xml.replace(begin + 1, end - begin - 1, fillings[upTo(std::size(fillings) - 1)]);
    }

    std::string& m_xml;
    std::mt19937 m_random;
};

} // namespace

std::size_t mutateXml(std::uint8_t* data, std::size_t size, std::size_t mostSize, unsigned seed)
{
    if (seed % 8 == 0)
        return LLVMFuzzerMutate(data, size, mostSize);
    std::string xml(reinterpret_cast<const char*>(data), size);
    for (unsigned round = 0; round <= seed % 3; ++round)
        Mutation(xml, seed + round).apply();
    const std::size_t length = std::min(xml.size(), mostSize);
    std::memcpy(data, xml.data(), length);
    return length;
}

} // namespace q7test
