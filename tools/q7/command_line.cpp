#include "command_line.h"

#include "commands.h"
#include "console.h"
#include "text.h"

#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>
#include <algorithm>
#include <exception>

namespace q7tool
{
namespace
{

constexpr char exitCodes[] = R"(Códigos de saída:
  0 feito   1 a biblioteca recusou   2 uso incorreto   3 sem conexão com a impressora
  4 papel ou tampa   5 o documento tem problema

A impressora é indicada por --impressora:
  MODELO@net:HOST[:9100]   rede       VANTA@net:192.168.0.10
  MODELO@com:PORTA[:9600]  serial     VESPA@com:COM3:115200
  MODELO@usb               USB        PINTA@usb)";

std::string behind(const std::string& text, const std::string& mark)
{
    const std::size_t at = text.find(mark);
    return at == std::string::npos ? text : text.substr(at + mark.size());
}

std::string before(const std::string& text, const std::string& mark)
{
    return text.substr(0, text.find(mark));
}

/** What the parser says, in Portuguese. It knows the kinds of fault; the names in its messages are
 *  this program's own. */
std::string inPortuguese(const CLI::ParseError& error, const CLI::App& program)
{
    const auto is = [&error](auto* kind) {
        return dynamic_cast<decltype(kind)>(&error) != nullptr;
    };
    std::string message = error.what();
    if (is(static_cast<const CLI::RequiredError*>(nullptr))) {
        if (message.find("subcommand") == std::string::npos)
            return "Falta " + before(message, " is required") + '.';
        const std::vector<std::string> unknown = program.remaining(true);
        return unknown.empty() ? "Falta dizer o comando."
                               : "O comando \"" + unknown.front() + "\" não existe.";
    }
    if (is(static_cast<const CLI::ExtrasError*>(nullptr)))
        return program.get_subcommands().empty() && message.find(": -") == std::string::npos
                   ? "O comando \"" + behind(message, "expected: ") + "\" não existe."
                   : "Não sei o que fazer com \"" + behind(message, "expected: ") + "\".";
    if (is(static_cast<const CLI::ConversionError*>(nullptr)))
        return before(behind(message, "convert: "), " = ") + " não aceita \"" +
               behind(message, " = ") + "\".";
    if (is(static_cast<const CLI::ArgumentMismatch*>(nullptr)))
        return message.find("Expected") == 0
                   ? "O número de valores de " + before(behind(message, "arguments to "), ", got") +
                         " não está certo."
                   : "Falta o valor de " + before(message, ":") + '.';
    return message;
}

/** The parser takes "-3" for an option; behind a blank it is a value. */
void shieldNegativeNumbers(std::vector<std::string>& arguments)
{
    int number = 0;
    for (std::string& argument : arguments)
        if (toNumber(argument, number) && number < 0)
            argument.insert(0, " ");
}

void speakPortuguese(CLI::App& program)
{
    auto formatter = std::make_shared<CLI::Formatter>();
    formatter->label("Usage", "Uso");
    formatter->label("OPTIONS", "OPÇÕES");
    formatter->label("SUBCOMMAND", "COMANDO");
    formatter->label("SUBCOMMANDS", "COMANDOS");
    formatter->label("Positionals", "Argumentos");
    formatter->label("REQUIRED", "(obrigatório)");
    formatter->label("Needs", "exige");
    formatter->label("Excludes", "não vale com");
    formatter->column_width(32);
    program.formatter(formatter);
    program.set_help_flag("-h,--ajuda", "Mostra esta ajuda")->group("Opções gerais");
    program.option_defaults()->group("Opções");
}

/** Of the commands below: what they take over from the program does not include its groups. */
void nameGroups(CLI::App& app)
{
    for (CLI::App* command : app.get_subcommands({})) {
        command->group("Comandos");
        command->footer(command->get_footer() + "\n\nTambém valem --json e --biblioteca: veja q7 "
                                                "--ajuda.");
        command->get_help_ptr()->group("Opções gerais");
        nameGroups(*command);
    }
}

std::unique_ptr<Answer> makeAnswer(bool json)
{
    return json ? makeJsonAnswer(writeOutput) : makeTextAnswer(writeOutput, writeError);
}

Exit perform(const Action& action, Answer& answer)
{
    Exit exit = Exit::Done;
    try {
        exit = action(answer);
    } catch (const Failure& failure) {
        answer.failed(failure);
        exit = failure.exit;
    } catch (const std::exception& error) {
        exit = Exit::Refused;
        answer.failed(
            {exit,
             std::string("O q7 não conseguiu continuar: ") + error.what() + '.',
             "Repita; se acontecer de novo, mande ao suporte o arquivo do q7 diagnostico.",
             {}});
    }
    answer.finish(exit);
    return exit;
}

} // namespace

Exit runCommandLine(std::vector<std::string> arguments)
{
    const bool wantsJson =
        std::find(arguments.begin(), arguments.end(), "--json") != arguments.end();
    CommonOptions common;
    bool version = false;
    Action action;
    CLI::App program("q7: a impressora de cupom na mão do integrador e do técnico.", "q7");
    speakPortuguese(program);
    program.footer(exitCodes);
    program.fallthrough();
    program.add_flag("--json", common.json, "Responde em JSON, para programas")
        ->group("Opções gerais");
    program
        .add_option("--biblioteca", common.library,
                    "A biblioteca a usar em vez da que está ao lado")
        ->option_text("ARQUIVO")
        ->group("Opções gerais");
    program
        .add_flag("--versao", version, "Mostra as versões do q7 e da biblioteca, e onde ela está")
        ->group("Opções gerais");

    const CommandLine line{program, common, action};
    addTestar(line);
    addEstado(line);
    addImprimir(line);
    addValidar(line);
    addVisualizar(line);
    addImpressora(line);
    addListar(line);
    addLog(line);
    addErro(line);
    addDiagnostico(line);
    nameGroups(program);

    try {
        shieldNegativeNumbers(arguments);
        std::reverse(arguments.begin(), arguments.end());
        program.parse(arguments);
        if (version)
            action = [&](Answer& answer) { return tellVersion(common, answer); };
        else if (!action)
            throw CLI::RequiredError::Subcommand(1);
    } catch (const CLI::CallForHelp&) {
        writeOutput(program.help());
        return Exit::Done;
    } catch (const CLI::ParseError& error) {
        action = [message = inPortuguese(error, program)](Answer&) -> Exit {
            throw Failure{Exit::Usage, message, "Veja q7 --ajuda e q7 COMANDO --ajuda.", {}};
        };
    }
    return perform(action, *makeAnswer(wantsJson));
}

} // namespace q7tool
