// q7 erro: what a result code means.

#include "commands.h"
#include "result_codes.h"
#include "text.h"

#include <nlohmann/json.hpp>

namespace q7tool
{
namespace
{

void tellCode(const ResultCode& code, Answer& answer)
{
    answer.fact("codigo", "Código", code.value);
    answer.fact("nome", "Nome", code.name);
    answer.fact("significado", "Significado", code.meaning, asSentence(code.meaning));
    if (!code.causes.empty())
        answer.fact("causas", "Causas", code.causes, asSentence(code.causes));
    if (!code.remedy.empty())
        answer.fact("o_que_fazer", "O que fazer", code.remedy, asSentence(code.remedy));
}

void tellAll(Answer& answer)
{
    std::vector<std::vector<Json>> rows;
    for (const ResultCode& code : resultCodes())
        rows.push_back({code.value, code.name, code.meaning});
    answer.table("codigos",
                 {{"codigo", "Código"}, {"nome", "Nome"}, {"significado", "Significado"}}, rows,
                 "");
}

Exit explain(const std::string& text, Answer& answer)
{
    if (text.empty()) {
        tellAll(answer);
        return Exit::Done;
    }
    int value = 0;
    const bool isNumber = toNumber(text, value);
    for (const ResultCode& code : resultCodes()) {
        if (isNumber ? code.value == value : code.name == upperCase(text)) {
            tellCode(code, answer);
            return Exit::Done;
        }
    }
    if (isNumber && value > 0)
        throw Failure{Exit::Usage,
                      text +
                          " é positivo: quantidade de bytes de uma impressão que deu certo, "
                          "número de um estado, ou erro do sistema ao abrir, fechar ou usar a USB.",
                      "Veja no cabeçalho q7_impressora.h o que a função chamada devolve.",
                      {}};
    throw Failure{Exit::Usage,
                  "\"" + text + "\" não é um código da biblioteca.",
                  "q7 erro, sem código, mostra todos.",
                  {}};
}

} // namespace

void addErro(const CommandLine& line)
{
    CLI::App* command =
        line.program.add_subcommand("erro", "Explica um código: causas e o que fazer");
    auto code = std::make_shared<std::string>();
    command->add_option("CODIGO", *code, "O número ou o nome; sem ele, a lista de todos")
        ->option_text(" ");
    command->footer("Exemplos:\n  q7 erro -3\n  q7 erro Q7_ERR_NOT_OPEN");
    command->callback([line, code] {
        code->erase(0, code->find_first_not_of(' '));
        line.action = [code](Answer& answer) { return explain(*code, answer); };
    });
}

} // namespace q7tool
