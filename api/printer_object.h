// The one printer object on which the English and the Prt family act, whatever their handle says.
#pragma once

#include <string>

namespace q7
{

class PrinterObject
{
public:
    /** Stores the model name for the opens that follow. Returns 0. */
    int create(const char* modelName);

    /** Opens what a PortOpen text asks for. Returns Q7_ERR_KIND for a text of no known kind, else
     *  what AbreConexaoImpressora returns. */
    int open(const char* portText);

    /** Asks StatusImpressora and keeps its answer. kind: a StatusKind. */
    int askStatus(int kind);

private:
    std::string m_modelName; // UTF-8
    int m_lastStatus = 0;
};

PrinterObject& printerObject();

} // namespace q7
