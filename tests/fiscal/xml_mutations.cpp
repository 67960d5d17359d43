#include "xml_mutations.h"

#include <algorithm>
#include <iterator>

namespace q7test
{
namespace
{

constexpr const char* otherContent[] = {"<!-- c -->",
                                        "<?p i?>",
                                        "<?ide i?>",
                                        "<![CDATA[1]]>",
                                        "<![CDATA[]]>",
                                        "<x/>",
                                        "&#49;",
                                        "&amp;",
                                        "&no;",
                                        "\n",
                                        "text",
                                        "\xc3\xa3",
                                        "<x xmlns='urn:x'/>"};

} // namespace

XmlMutations::XmlMutations(std::string document, unsigned seed)
    : m_document(std::move(document)), m_random(seed)
{
    for (std::size_t begin = m_document.find('<'); begin != std::string::npos;
         begin = m_document.find('<', begin + 1)) {
        const std::size_t end = m_document.find('>', begin);
        if (m_document[begin + 1] != '?' && m_document[begin + 1] != '!')
            m_tags.push_back({begin, end + 1 - begin});
    }
}

std::string XmlMutations::next()
{
    std::string made = m_document;
    const std::size_t number = below(m_tags.size() - 1);
    const Tag tag = m_tags[number];
    const std::size_t behind = tag.begin + tag.size;
    const std::size_t textSize = m_tags[number + 1].begin - behind;
    switch (below(10)) {
    case 0: // an element, or several and half of one
        return made.erase(tag.begin,
                          m_tags[std::min(number + 2, m_tags.size() - 1)].begin - tag.begin);
    case 1: // a tag
        return made.erase(tag.begin, tag.size);
    case 2: // an element twice
        return made.insert(behind, made.substr(tag.begin, tag.size + textSize) + "</" +
                                       made.substr(tag.begin + 1, tag.size - 1));
    case 3: // another text
        return made.replace(behind, textSize, textSize == 0 ? "7" : "");
    case 4:
        return textSize == 0 ? made : made.insert(behind + below(textSize), "0");
    case 5:
    case 6: // a digit, which most often conforms
        for (std::size_t at = behind + below(made.size() - behind); at < made.size(); ++at)
            if (made[at] >= '0' && made[at] <= '9') {
                made[at] = static_cast<char>('0' + below(10));
                break;
            }
        return made;
    case 7: // an attribute, which a tag may have already
        return made[behind - 2] == '/' || made[tag.begin + 1] == '/'
                   ? made
                   : made.insert(behind - 1, " nItem='2'");
    case 8: // a character
        made[behind + below(made.size() - behind)] = "<>&\"xA\xc3 "[below(8)];
        return made;
    default: // other things that XML has
        return made.insert(behind, otherContent[below(std::size(otherContent))]);
    }
}

} // namespace q7test
