#include "languages.h"

namespace q7decl
{

const std::vector<Language>& languages()
{
    static const std::vector<Language> all = {
        {"Delphi e Free Pascal", "delphi", delphiSignature},
        {"C#", "csharp", csharpSignature},
        {"Visual Basic 6", "vbnet", vb6Signature},
        {"Java", "java", javaSignature},
        {"Python", "python", pythonSignature},
        {"PHP", "none", phpSignature},
    };
    return all;
}

} // namespace q7decl
