#include "result_codes.h"

#include <algorithm>

namespace q7tool
{

const std::vector<ResultCode>& resultCodes()
{
#define Q7_CODE(name, value, meaning, causes, remedy) {value, #name, meaning, causes, remedy},
#define Q7_NET(name, value, meaning)
    static const std::vector<ResultCode> codes = {
#include "q7_codes.inc"
    };
#undef Q7_CODE
#undef Q7_NET
    return codes;
}

const std::vector<NetError>& netErrors()
{
#define Q7_CODE(name, value, meaning, causes, remedy)
#define Q7_NET(name, value, meaning) {value, #name, meaning},
    static const std::vector<NetError> errors = {
#include "q7_codes.inc"
    };
#undef Q7_CODE
#undef Q7_NET
    return errors;
}

const ResultCode* findResultCode(int value)
{
    const std::vector<ResultCode>& codes = resultCodes();
    const auto code = std::find_if(codes.begin(), codes.end(),
                                   [value](const ResultCode& row) { return row.value == value; });
    return code == codes.end() ? nullptr : &*code;
}

} // namespace q7tool
