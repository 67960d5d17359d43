// Fiscal documents from their files to paper, with what the command line says of them.
#pragma once

#include "fiscal_file.h"
#include "printer_library.h"

#include <string>
#include <vector>

namespace CLI
{
class App;
}

namespace q7tool
{

/** As they were given. */
struct DocumentOptions {
    std::string file;
    std::string sale;
    std::vector<std::string> csc;
    std::string bits = "0";
};

/** Adds ARQUIVO, --opcoes, --csc and --venda to a command. */
void addDocumentOptions(CLI::App& command, DocumentOptions& options);

struct PrintableDocument {
    FiscalFile file;
    int bits = 0;
    int cscId = 0;
    std::string csc;
    std::string saleSignature; // of a cancellation
};

/** Throws Failure for options and files that cannot be printed. */
PrintableDocument readDocument(const DocumentOptions& options);

/** Prints over the open connection, and cuts. Throws Failure. */
void printDocument(const PrinterLibrary& library, const PrintableDocument& document);

} // namespace q7tool
