// What goes wrong in XML: documents changed in one place, the same ones at every run.
#pragma once

#include <random>
#include <string>
#include <vector>

namespace q7test
{

class XmlMutations
{
public:
    /** document: well-formed. seed: chooses the sequence. */
    XmlMutations(std::string document, unsigned seed);

    /** The document with another change: an element, a tag, a text, an attribute or a character gone,
     *  doubled or replaced, or something put in between. Some are still well-formed. */
    std::string next();

private:
    struct Tag {
        std::size_t begin;
        std::size_t size;
    };

    std::size_t below(std::size_t limit) { return m_random() % limit; }

    std::string m_document;
    std::vector<Tag> m_tags;
    std::mt19937 m_random;
};

} // namespace q7test
