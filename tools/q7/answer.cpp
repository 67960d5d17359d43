#include "answer.h"

#include "result_codes.h"
#include "text.h"

#include <nlohmann/json.hpp>

namespace q7tool
{
namespace
{

/** Empty for the system's own numbers. */
std::string codeName(const Failure& failure)
{
    if (!failure.codeName.empty())
        return failure.codeName;
    const ResultCode* code = findResultCode(*failure.code);
    return code == nullptr ? std::string() : std::string(code->name);
}

std::string inWords(const Json& value)
{
    if (value.is_string())
        return value.get<std::string>();
    if (value.is_boolean())
        return value.get<bool>() ? "sim" : "não";
    return value.is_null() ? "-" : value.dump();
}

class TextAnswer : public Answer
{
public:
    TextAnswer(Sink output, Sink errors) : m_output(std::move(output)), m_errors(std::move(errors))
    {
    }

    void beginSection(const std::string& /*key*/, const std::string& title) override
    {
        m_output((m_begun ? "\n" : "") + title + '\n');
        m_begun = true;
        ++m_depth;
    }

    void endSection() override { --m_depth; }

    void fact(const std::string& /*key*/, const std::string& label, const Json& value,
              const std::string& words) override
    {
        line(label + ": " + (words.empty() ? inWords(value) : words));
    }

    void table(const std::string& /*key*/, const std::vector<Column>& columns,
               const std::vector<std::vector<Json>>& rows, const std::string& none) override
    {
        if (rows.empty()) {
            line(none);
            return;
        }
        std::vector<std::vector<std::string>> cells(1);
        for (const Column& column : columns)
            cells.front().push_back(column.title);
        for (const std::vector<Json>& row : rows) {
            cells.emplace_back();
            for (const Json& value : row)
                cells.back().push_back(inWords(value));
        }
        std::vector<std::size_t> widths(columns.size());
        for (const auto& row : cells)
            for (std::size_t i = 0; i < row.size(); ++i)
                widths[i] = std::max(widths[i], characterCount(row[i]));
        for (const auto& row : cells) {
            std::string text;
            for (std::size_t i = 0; i < row.size(); ++i) {
                text += row[i];
                if (i + 1 < row.size())
                    text.append(widths[i] - characterCount(row[i]) + 2, ' ');
            }
            line(text);
        }
    }

    void record(const Json& /*object*/, const std::string& text) override { line(text); }

    void remark(const std::string& text) override
    {
        std::size_t at = 0;
        for (std::size_t end = 0; (end = text.find('\n', at)) != std::string::npos; at = end + 1)
            line(text.substr(at, end - at));
        if (at < text.size())
            line(text.substr(at));
    }

    bool isForPeople() const override { return true; }

    void failed(const Failure& failure) override
    {
        m_errors("O que houve: " + failure.happened + "\nCódigo: " + codeInWords(failure) +
                 "\nO que fazer: " + failure.todo + '\n');
    }

    void finish(Exit /*exit*/) override {}

private:
    void line(const std::string& text)
    {
        m_begun = true;
        m_output(std::string(m_depth * 2, ' ') + text + '\n');
    }

    Sink m_output;
    Sink m_errors;
    std::size_t m_depth = 0;
    bool m_begun = false;
};

// Text that is no UTF-8 (a file's content) must not end the program.
std::string dumped(const Json& json, int indent)
{
    return json.dump(indent, ' ', false, Json::error_handler_t::replace) + '\n';
}

class JsonAnswer : public Answer
{
public:
    explicit JsonAnswer(Sink output) : m_output(std::move(output)) {}

    void beginSection(const std::string& key, const std::string& /*title*/) override
    {
        m_path.push_back(&(*m_path.back())[key]);
        *m_path.back() = Json::object();
    }

    void endSection() override { m_path.pop_back(); }

    void fact(const std::string& key, const std::string& /*label*/, const Json& value,
              const std::string& /*words*/) override
    {
        (*m_path.back())[key] = value;
    }

    void table(const std::string& key, const std::vector<Column>& columns,
               const std::vector<std::vector<Json>>& rows, const std::string& /*none*/) override
    {
        Json list = Json::array();
        for (const std::vector<Json>& row : rows) {
            Json object = Json::object();
            for (std::size_t i = 0; i < columns.size(); ++i)
                object[columns[i].key] = row[i];
            list.push_back(std::move(object));
        }
        (*m_path.back())[key] = std::move(list);
    }

    void record(const Json& object, const std::string& /*text*/) override
    {
        m_recorded = true;
        m_output(dumped(object, -1));
    }

    void remark(const std::string& /*text*/) override {}

    bool isForPeople() const override { return false; }

    void failed(const Failure& failure) override
    {
        Json error = {{"mensagem", failure.happened}, {"o_que_fazer", failure.todo}};
        if (failure.code) {
            error["codigo"] = *failure.code;
            if (const std::string name = codeName(failure); !name.empty())
                error["nome"] = name;
        }
        m_root["erro"] = std::move(error);
    }

    void finish(Exit exit) override
    {
        m_root["saida"] = static_cast<int>(exit);
        if (!m_recorded || exit != Exit::Done)
            m_output(dumped(m_root, m_recorded ? -1 : 2));
    }

private:
    Sink m_output;
    Json m_root = Json::object();
    std::vector<Json*> m_path = {&m_root};
    bool m_recorded = false;
};

} // namespace

std::unique_ptr<Answer> makeTextAnswer(Sink output, Sink errors)
{
    return std::make_unique<TextAnswer>(std::move(output), std::move(errors));
}

std::unique_ptr<Answer> makeJsonAnswer(Sink output)
{
    return std::make_unique<JsonAnswer>(std::move(output));
}

std::string codeInWords(const Failure& failure)
{
    if (!failure.code)
        return "saída " + std::to_string(static_cast<int>(failure.exit)) + " do q7";
    const std::string name = codeName(failure);
    return std::to_string(*failure.code) + (name.empty() ? "" : " (" + name + ')');
}

} // namespace q7tool
