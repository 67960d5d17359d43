#include "commands.h"
#include "printer_library.h"

#include <nlohmann/json.hpp>

namespace q7tool
{

Exit tellVersion(const CommonOptions& common, Answer& answer)
{
    answer.fact("q7", "q7", programVersion,
                std::string(programVersion) + ", de " + std::to_string(sizeof(void*) * 8) +
                    " bits");
    if (!answer.isForPeople())
        answer.fact("bits", "", sizeof(void*) * 8);
    const PrinterLibrary library(common.library);
    answer.fact("biblioteca", "Biblioteca", library.path());
    answer.fact("versao_biblioteca", "Versão da biblioteca", library.version());
    const std::string concern = versionConcern(library);
    if (!concern.empty())
        throw Failure{Exit::Refused, concern, "Use o q7 e a biblioteca do mesmo pacote.", {}};
    return Exit::Done;
}

} // namespace q7tool
