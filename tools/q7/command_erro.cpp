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

/** What a number means as an answer depends on who gave it. */
void tellMeanings(const std::vector<Meaning>& meanings, Answer& answer)
{
    std::vector<std::vector<Json>> rows;
    for (const Meaning& meaning : meanings) {
        answer.remark(meaning.purpose);
        answer.remark("  " + asSentence(meaning.meaning) + " (" + meaning.names + ')');
        rows.push_back({meaning.purpose, meaning.names, meaning.meaning});
    }
    if (!answer.isForPeople())
        answer.table("respostas", {{"quando", ""}, {"nome", ""}, {"significado", ""}}, rows, "");
}

void tellPositive(int value, Answer& answer)
{
    answer.fact("codigo", "Número", value,
                std::to_string(value) + "; o que quer dizer depende da função que o devolveu.");
    tellMeanings(meaningsOf(value), answer);
    const std::string system = systemMessage(value);
    if (!answer.isForPeople())
        answer.fact("sistema", "", system);
    answer.remark("Erro do sistema, de uma função que abre ou fecha, ou que envia pela USB.\n  " +
                  system + "\nQuantidade, de uma função que imprime um texto.\n  " +
                  std::to_string(value) + " bytes foram entregues.");
    answer.remark("O que fazer: q7 testar acha a causa de uma impressora que não abre; q7 log "
                  "mostrar diz\nque função devolveu o número.");
}

/** A constant that is no result code. */
bool tellConstant(const std::string& name, Answer& answer)
{
    for (const ReturnedConstant& constant : returnedConstants()) {
        if (constant.name == name) {
            answer.fact("codigo", "Número", constant.value);
            tellMeanings({{std::string(constant.purpose), name, std::string(constant.meaning)}},
                         answer);
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
            tellMeanings(isNumber ? meaningsOf(value) : std::vector<Meaning>(), answer);
            return Exit::Done;
        }
    }
    if (isNumber && value > 0) {
        tellPositive(value, answer);
        return Exit::Done;
    }
    if (!isNumber && tellConstant(upperCase(text), answer))
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
