// q7 erro: what a result code means.

#include "commands.h"
#include "result_codes.h"
#include "system_name.h"
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

/** A number that is no code has its meaning from the function that gave it. */
bool tellPositive(int value, Answer& answer)
{
    if (value <= 0)
        return false;
    answer.fact("codigo", "Número", value, std::to_string(value) + ", que não é um código");
    for (const NetError& error : netErrors())
        if (error.value == value)
            answer.fact("rede", "Ao abrir pela rede", error.meaning,
                        asSentence(error.meaning) + " (" + std::string(error.name) + ')');
    const std::string system = systemMessage(value);
    answer.fact("sistema", "Ao abrir, usar ou fechar a USB ou a serial", system,
                "o erro do sistema: " + system);
    answer.fact("quantidade", "De um texto impresso", "bytes", "quantos bytes foram entregues");
    answer.fact("estado", "De uma pergunta", "estado",
                "o estado: as constantes de cada pergunta estão em q7_impressora.h e no manual");
    return true;
}

bool tellNetError(const std::string& name, Answer& answer)
{
    for (const NetError& error : netErrors()) {
        if (error.name == name) {
            answer.fact("codigo", "Número", error.value);
            answer.fact("nome", "Nome", error.name);
            answer.fact("rede", "Ao abrir pela rede", error.meaning, asSentence(error.meaning));
            return true;
        }
    }
    return false;
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
    if (isNumber ? tellPositive(value, answer) : tellNetError(upperCase(text), answer))
        return Exit::Done;
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
    command->footer("Exemplos:\n  q7 erro -3\n  q7 erro Q7_ERR_NOT_OPEN\n  q7 erro 5");
    command->callback([line, code] {
        code->erase(0, code->find_first_not_of(' '));
        line.action = [code](Answer& answer) { return explain(*code, answer); };
    });
}

} // namespace q7tool
