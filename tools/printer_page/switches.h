// What a person switches at the printer while it serves.
#pragma once

#include "server.h"

#include <mutex>
#include <string>

namespace printer_page
{

class Switches
{
public:
    struct Positions {
        std::string model;
        virtual_printer::State state;
        bool silent = false; // answers no query
    };

    /** server: must outlive this; settings: what it was made with. */
    Switches(virtual_printer::Server& server, const virtual_printer::ServerSettings& settings);

    Positions positions() const;

    /** Sets one switch: "papel" (tem, acabando, sem), "tampa" and "gaveta" (fechada, aberta),
     *  "silencio" (nao, sim) or "modelo" (a model's name, from the next connection on).
     *  False when there is no such switch or position. Any thread. */
    bool set(const std::string& name, const std::string& position);

private:
    mutable std::mutex m_mutex;
    virtual_printer::Server& m_server;
    virtual_printer::Behaviour m_behaviour;
    unsigned m_powerOnCodeTable;
    Positions m_positions;
};

} // namespace printer_page
