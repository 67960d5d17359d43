// What the library's result codes mean, for people: made from the public header's documentation.
#pragma once

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

/** An error of the network, as an opening over TCP gives it: zero or positive. */
struct NetError {
    int value;
    std::string_view name;
    std::string_view meaning;
};

const std::vector<NetError>& netErrors();

/** Null for a number that is no result code. */
const ResultCode* findResultCode(int value);

} // namespace q7tool
