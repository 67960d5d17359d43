#include "test_files.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace q7test
{

std::string fileContent(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw std::runtime_error("cannot be read: " + path);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string exampleDocument(const std::string& name)
{
    return fileContent(std::string(Q7_EXAMPLE_DOCUMENTS) + '/' + name + ".xml");
}

std::string sampleData(const std::string& name)
{
    const std::string path = std::string(Q7_SAMPLE_DATA) + '/' + name;
    return std::filesystem::exists(path) ? path : std::string();
}

} // namespace q7test
