// What the numbers that the library returns mean, for people: made from the public header's
// documentation.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace q7tool
{

/** Texts are Portuguese sentences. */
struct ResultCode {
    int value;
    std::string_view name; // of the header's constant
    std::string_view meaning;
    std::string_view causes;
    std::string_view remedy;
};

const std::vector<ResultCode>& resultCodes();

/** Null for a number that is no result code. */
const ResultCode* findResultCode(int value);

/** Another constant that functions return: an error of the network, a state. */
struct ReturnedConstant {
    std::string_view enumeration;
    std::string_view purpose; // of the enumeration, a sentence: who returns it and when
    std::string_view name;
    int value;
    std::string_view meaning;
};

const std::vector<ReturnedConstant>& returnedConstants();

/** What a number means in one place where it is returned. */
struct Meaning {
    std::string purpose;
    std::string names; // of the constants; of several, that the number is the sum of, with " + "
    std::string meaning;
};

std::vector<Meaning> meaningsOf(int value);

} // namespace q7tool
