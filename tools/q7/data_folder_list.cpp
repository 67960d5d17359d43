#include "data_folder_list.h"

#include "file_path.h"

#include <nlohmann/json.hpp>

namespace q7tool
{

void tellDataFolder(const DataFolderFacts& facts, Answer& answer)
{
    answer.fact("pasta", "Pasta de dados", facts.folder);
    for (std::size_t i = 0; i < facts.registered.size(); ++i) {
        const auto& [place, text] = facts.registered[i];
        answer.fact("registrada_" + std::to_string(i + 1), place, text,
                    text.empty() ? "nada" : text);
    }
    answer.fact("gravavel", "Pode ser gravada", facts.isWritable);
    const std::string log = facts.folder + logFileName;
    std::error_code error;
    const auto size = std::filesystem::file_size(filePath(log), error);
    answer.fact("log_ligado", "Log ligado", !error,
                error ? "não" : "sim, " + std::to_string(size) + " bytes em " + log);
    if (!facts.isRegistered)
        answer.remark(
            "Nada que exista está registrado: vale a pasta corrente de cada programa. A da "
            "sua\naplicação pode ser outra que esta; indique-a com --pasta.");
}

} // namespace q7tool
