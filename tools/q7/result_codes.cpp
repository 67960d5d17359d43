#include "result_codes.h"

#include <algorithm>

namespace q7tool
{

const std::vector<ResultCode>& resultCodes()
{
#define Q7_CODE(name, value, meaning, causes, remedy) {value, #name, meaning, causes, remedy},
    static const std::vector<ResultCode> codes = {
#include "q7_codes.inc"
    };
#undef Q7_CODE
    return codes;
}

const ResultCode* findResultCode(int value)
{
    const std::vector<ResultCode>& codes = resultCodes();
    const auto code = std::find_if(codes.begin(), codes.end(),
                                   [value](const ResultCode& row) { return row.value == value; });
    return code == codes.end() ? nullptr : &*code;
}

} // namespace q7tool
