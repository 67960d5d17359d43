// The commands, each in a file of its own: what it is called with, and what it does.
#pragma once

#include "answer.h"

#include <CLI/App.hpp>
#include <functional>
#include <string>

namespace q7tool
{

/** What holds for every command. */
struct CommonOptions {
    bool json = false;
    std::string library; // --biblioteca; empty for the one beside the program
};

/** What is to be done once the whole command line is known to make sense. Throws Failure. */
using Action = std::function<Exit(Answer& answer)>;

/** Where commands are added. What is referred to outlives the command's run. */
struct CommandLine {
    CLI::App& program;
    const CommonOptions& common;
    Action& action; // set by the command that was called
};

void addListar(const CommandLine& line);
void addTestar(const CommandLine& line);
void addEstado(const CommandLine& line);
void addImprimir(const CommandLine& line);
void addValidar(const CommandLine& line);
void addVisualizar(const CommandLine& line);
void addImpressora(const CommandLine& line);
void addLog(const CommandLine& line);
void addErro(const CommandLine& line);
void addDiagnostico(const CommandLine& line);

/** q7 --versao: this program, its library, and whether they fit. */
Exit tellVersion(const CommonOptions& common, Answer& answer);

} // namespace q7tool
