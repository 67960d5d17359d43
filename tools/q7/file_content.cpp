#include "file_content.h"

#include "failure.h"
#include "file_path.h"

#include <fstream>

namespace q7tool
{

std::string contentOf(const std::string& path, std::size_t atMost)
{
    std::ifstream file(filePath(path), std::ios::binary);
    std::error_code error;
    if (!file || std::filesystem::is_directory(filePath(path), error))
        throw Failure{Exit::Usage,
                      "O arquivo " + path + " não pôde ser lido.",
                      "Confira o nome e a pasta; nomes com espaços vão entre aspas.",
                      {}};
    std::string content;
    char buffer[65536];
    do {
        file.read(buffer, sizeof buffer);
        content.append(buffer, static_cast<std::size_t>(file.gcount()));
        if (content.size() > atMost)
            throw Failure{Exit::Document,
                          "O arquivo " + path + " é grande demais: mais de " +
                              std::to_string(atMost >> 20U) + " MB.",
                          "Confira se é mesmo o arquivo certo.",
                          {}};
    } while (file);
    return content;
}

} // namespace q7tool
