#include "switches.h"

namespace printer_page
{

using namespace virtual_printer;

Switches::Switches(Server& server, const ServerSettings& settings)
    : m_server(server),
      m_behaviour(settings.behaviour),
      m_powerOnCodeTable(settings.model.powerOnCodeTable),
      m_positions{std::string(settings.model.name), settings.state, settings.behaviour.silent}
{
}

Switches::Positions Switches::positions() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_positions;
}

bool Switches::set(const std::string& name, const std::string& position)
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    State& state = m_positions.state;
    const auto between = [&](bool& flag, std::string_view off, std::string_view on) {
        if (position != off && position != on) {
            return false;
        }
        flag = position == on;
        m_server.setState(state);
        return true;
    };
    if (name == "papel") {
        if (position != "tem" && position != "acabando" && position != "sem") {
            return false;
        }
        state.paperOut = position == "sem";
        state.paperNearEnd = position == "acabando";
        m_server.setState(state);
        return true;
    }
    if (name == "tampa") {
        return between(state.coverOpen, "fechada", "aberta");
    }
    if (name == "gaveta") {
        return between(state.drawerOpen, "fechada", "aberta");
    }
    if (name == "silencio") {
        const bool known = between(m_positions.silent, "nao", "sim");
        m_behaviour.silent = m_positions.silent;
        m_server.setBehaviour(m_behaviour);
        return known;
    }
    const Model* model = name == "modelo" ? findModel(position) : nullptr;
    if (model == nullptr) {
        return false;
    }
    Model chosen = *model;
    chosen.powerOnCodeTable = m_powerOnCodeTable;
    m_positions.model = chosen.name;
    m_server.setModel(chosen);
    return true;
}

} // namespace printer_page
