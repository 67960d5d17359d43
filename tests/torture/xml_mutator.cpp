// Mutations that keep much of a document standing: what an element is moved to, or filled with. libFuzzer
// finds its mutator by name.

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <random>
#include <string>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t mostSize);

namespace
{

struct Range {
    std::size_t begin;
    std::size_t end;
};

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
            change(contentOf(one));
            break;
        case 5: // many
            for (int i = 1 << upTo(7); i > 0 && m_xml.size() < 200'000; --i)
                m_xml.insert(one.begin, moved);
            break;
        case 6:
            m_xml.resize(upTo(m_xml.size() + 1)); // cut off
            break;
        default:
            change({0, upTo(1) * std::min(m_xml.find('>') + 1, m_xml.size())});
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

    /** The text of an element, or the value of one of its attributes. */
    Range contentOf(Range range)
    {
        const char opening = upTo(3) == 0 ? '"' : '>';
        const std::size_t begin = m_xml.find(opening, range.begin);
        if (begin == std::string::npos)
            return {range.begin, range.begin};
        return {begin + 1,
                std::min(m_xml.find(opening == '"' ? '"' : '<', begin + 1), m_xml.size())};
    }

    /** Puts something else there: what was there as the fuzzer changes bytes, a word of its dictionary
     *  alone, or a long text, which a dictionary cannot have. */
    void change(Range range)
    {
        std::string bytes = m_xml.substr(range.begin, range.end - range.begin);
        if (upTo(9) == 0) {
            bytes.assign(upTo(3000), "W7 "[upTo(2)]);
        } else {
            const std::size_t size = upTo(1) * bytes.size();
            bytes.resize(size + 64);
            auto* const data = reinterpret_cast<std::uint8_t*>(bytes.data());
            bytes.resize(LLVMFuzzerMutate(data, size, bytes.size()));
        }
        m_xml.replace(range.begin, range.end - range.begin, bytes);
    }

    std::string& m_xml;
    std::mt19937 m_random;
};

} // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t mostSize, unsigned seed)
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
