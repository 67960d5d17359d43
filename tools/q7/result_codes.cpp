#include "result_codes.h"

#include "text.h"

#include <algorithm>

namespace q7tool
{

const std::vector<ResultCode>& resultCodes()
{
#define Q7_CODE(name, value, meaning, causes, remedy) {value, #name, meaning, causes, remedy},
#define Q7_ANSWER(enumeration, purpose, name, value, meaning)
    static const std::vector<ResultCode> codes = {
#include "q7_codes.inc"
    };
#undef Q7_CODE
#undef Q7_ANSWER
    return codes;
}

const std::vector<ReturnedConstant>& returnedConstants()
{
#define Q7_CODE(name, value, meaning, causes, remedy)
#define Q7_ANSWER(enumeration, purpose, name, value, meaning)                                      \
    {#enumeration, purpose, #name, value, meaning},
    static const std::vector<ReturnedConstant> constants = {
#include "q7_codes.inc"
    };
#undef Q7_CODE
#undef Q7_ANSWER
    return constants;
}

const ResultCode* findResultCode(int value)
{
    const std::vector<ResultCode>& codes = resultCodes();
    const auto code = std::find_if(codes.begin(), codes.end(),
                                   [value](const ResultCode& row) { return row.value == value; });
    return code == codes.end() ? nullptr : &*code;
}

std::vector<Meaning> meaningsOf(int value)
{
    std::vector<Meaning> meanings;
    Meaning sum;
    int rest = value;
    for (const ReturnedConstant& constant : returnedConstants()) {
        if (!endsWith(constant.enumeration, "Bit")) {
            if (constant.value == value)
                meanings.push_back({std::string(constant.purpose), std::string(constant.name),
                                    std::string(constant.meaning)});
        } else if (value > 0 && (value & constant.value) != 0) {
            rest -= constant.value;
            sum.purpose = constant.purpose;
            sum.names += (sum.names.empty() ? "" : " + ") + std::string(constant.name);
            sum.meaning += (sum.meaning.empty() ? "" : "; ") + std::string(constant.meaning);
        }
    }
    if (rest == 0 && value > 0)
        meanings.push_back(sum);
    return meanings;
}

} // namespace q7tool
