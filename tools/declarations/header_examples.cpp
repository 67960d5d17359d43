#include "languages.h"

namespace q7decl
{

std::string headerExamples(const Interface& interface)
{
    std::string text = "#include \"q7_impressora.h\"\n#include <stdio.h>\n\nint main(void)\n{\n";
    for (const Function& function : interface.functions) {
        text += "    { /* " + function.name + " */\n";
        for (const std::string& statement : function.example)
            text += "        " + statement + "\n";
        text += "    }\n";
    }
    return text + "    return 0;\n}\n";
}

} // namespace q7decl
