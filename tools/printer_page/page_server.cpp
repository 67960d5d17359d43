#include "page_server.h"

#include "page_files.h"
#include "page_guard.h"
#include "system_links.h"

#include <httplib.h>
#include <nlohmann/json.hpp>

#include <atomic>
#include <optional>
#include <sstream>
#include <system_error>
#include <thread>

namespace printer_page
{
namespace
{

using nlohmann::json;
using std::chrono::milliseconds;

constexpr char plainText[] = "text/plain; charset=utf-8";

/** Every open page holds a thread for its events; the rest answer requests. */
constexpr int mostEventStreams = 8;
constexpr std::size_t serverThreads = std::size_t{2} * mostEventStreams;

const char* typeOf(const std::string& file)
{
    const std::string end = file.substr(file.rfind('.') + 1);
    return end == "html"  ? "text/html; charset=utf-8"
           : end == "css" ? "text/css; charset=utf-8"
           : end == "js"  ? "text/javascript; charset=utf-8"
                          : "image/svg+xml";
}

Asker askerOf(const httplib::Request& request)
{
    return {request.get_header_value("Host"), request.get_header_value("Origin"),
            request.get_header_value("Sec-Fetch-Site"), request.get_header_value("X-Q7-Token")};
}

/** Width or height of a PNG picture, from its head. */
unsigned pngSide(const std::string& png, std::size_t at)
{
    unsigned side = 0;
    for (std::size_t i = at; i < at + 4 && i < png.size(); ++i) {
        side = side << 8U | static_cast<unsigned char>(png[i]);
    }
    return side;
}

json summaryOf(const Receipt& receipt)
{
    json pictures = json::array();
    for (const std::string& png : receipt.pictures) {
        pictures.push_back({pngSide(png, 16), pngSide(png, 20)});
    }
    const auto begunMs = std::chrono::duration_cast<milliseconds>(receipt.begun.time_since_epoch());
    return {{"numero", receipt.id},           {"modelo", receipt.model},
            {"inicio", begunMs.count()},      {"pronto", receipt.finished},
            {"encurtado", receipt.shortened}, {"imagens", pictures},
            {"bytes", receipt.bytes.size()},  {"avisos", receipt.notes},
            {"observacoes", receipt.remarks}};
}

std::string event(const char* name, const json& data)
{
    // What is no UTF-8 must not end the stream.
    return std::string("event: ") + name +
           "\ndata: " + data.dump(-1, ' ', false, json::error_handler_t::replace) + "\n\n";
}

std::string positionName(bool on, const char* off, const char* name)
{
    return on ? name : off;
}

} // namespace

struct PageServer::Serving {
    Serving(std::string address, ReceiptShelf& receipts, Switches& printerSwitches)
        : printerAddress(std::move(address)), shelf(receipts), switches(printerSwitches)
    {
    }

    void open(std::uint16_t wantedPort)
    {
        http.new_task_queue = [] { return new httplib::ThreadPool(serverThreads); };
        http.set_socket_options([](socket_t socket) { virtual_printer::claimPort(socket); });
        http.set_payload_max_length(4096);
        http.set_keep_alive_timeout(2);
        http.set_tcp_nodelay(true);
        const int bound = wantedPort == 0 ? http.bind_to_any_port("127.0.0.1")
                          : http.bind_to_port("127.0.0.1", wantedPort) ? wantedPort
                                                                       : -1;
        if (bound < 0) {
            throw std::system_error(std::make_error_code(std::errc::address_in_use),
                                    "port " + std::to_string(wantedPort));
        }
        port = static_cast<std::uint16_t>(bound);
        guard.emplace(port);
        route();
        thread = std::thread([this] {
            http.listen_after_bind();
            ended = true;
        });
    }

    ~Serving()
    {
        ending = true;
        shelf.wake();
        if (thread.joinable()) {
            // A server that has not begun to listen takes no notice of its end.
            while (!http.is_running() && !ended) {
                std::this_thread::yield();
            }
            http.stop();
            thread.join();
        }
    }

    void route();
    void switchIt(const httplib::Request& request, httplib::Response& response);
    void streamEvents(httplib::Response& response);
    template <typename Give> void getOfReceipt(const std::string& path, Give give);
    json stateOf() const;

    std::string printerAddress;
    ReceiptShelf& shelf;
    Switches& switches;
    std::uint16_t port = 0;
    std::optional<PageGuard> guard;
    std::atomic<bool> ending{false};
    std::atomic<bool> ended{false};
    std::atomic<int> streams{0};
    httplib::Server http;
    std::thread thread;
};

void PageServer::Serving::route()
{
    http.set_default_headers(
        {{"Cache-Control", "no-store"},
         {"Content-Security-Policy",
          "default-src 'none'; script-src 'self'; style-src 'self'; img-src 'self'; "
          "connect-src 'self'; base-uri 'none'; form-action 'none'; frame-ancestors 'none'"},
         {"Cross-Origin-Resource-Policy", "same-origin"},
         {"Referrer-Policy", "no-referrer"},
         {"X-Content-Type-Options", "nosniff"}});
    http.set_pre_routing_handler([this](const auto& request, auto& response) {
        const Asker asker = askerOf(request);
        const bool looks = request.method == "GET" || request.method == "HEAD";
        if (looks ? guard->mayLook(asker) : guard->maySwitch(asker)) {
            return httplib::Server::HandlerResponse::Unhandled;
        }
        response.status = 403;
        response.set_content("Só a própria página pode pedir isto.\n", plainText);
        return httplib::Server::HandlerResponse::Handled;
    });
    http.Get("/", [this](const auto&, auto& response) {
        std::string page(pageFiles.at("index.html"));
        const std::string mark = "@TOKEN@";
        page.replace(page.find(mark), mark.size(), guard->token());
        response.set_content(page, typeOf("index.html"));
    });
    for (const char* name : {"page.css", "page.js", "icon.svg"}) {
        http.Get(std::string("/") + name, [name](const auto&, auto& response) {
            const std::string_view file = pageFiles.at(name);
            response.set_content(file.data(), file.size(), typeOf(name));
        });
    }
    http.Get("/eventos", [this](const auto&, auto& response) { streamEvents(response); });
    http.Post("/chaves",
              [this](const auto& request, auto& response) { switchIt(request, response); });
    http.Post("/limpar", [this](const auto&, auto& response) {
        shelf.clear();
        response.status = 204;
    });
    getOfReceipt(R"(imagem-(\d{1,4})\.png)",
                 [](const Receipt& receipt, const auto& request, auto& response) {
                     const auto part = static_cast<std::size_t>(std::stoi(request.matches[2]));
                     if (part < 1 || part > receipt.pictures.size()) {
                         response.status = 404;
                         return;
                     }
                     response.set_content(receipt.pictures[part - 1], "image/png");
                 });
    getOfReceipt(R"(texto\.txt)", [](const Receipt& receipt, const auto&, auto& response) {
        response.set_content(receipt.text, plainText);
    });
    getOfReceipt(R"(comandos\.txt)", [](const Receipt& receipt, const auto&, auto& response) {
        response.set_content(receipt.commands, plainText);
    });
    getOfReceipt(R"(bytes\.bin)", [](const Receipt& receipt, const auto&, auto& response) {
        response.set_content(receipt.bytes, "application/octet-stream");
    });
}

/** give: called with the receipt, the request and the response. */
template <typename Give> void PageServer::Serving::getOfReceipt(const std::string& path, Give give)
{
    http.Get(R"(/cupons/(\d{1,9})/)" + path, [this, give](const auto& request, auto& response) {
        const ReceiptShelf::Kept receipt = shelf.find(std::stoi(request.matches[1]));
        if (receipt == nullptr) {
            response.status = 404;
            response.set_content("Este cupom não está mais guardado.\n", plainText);
            return;
        }
        give(*receipt, request, response);
    });
}

void PageServer::Serving::switchIt(const httplib::Request& request, httplib::Response& response)
{
    response.status = 204;
    for (const auto& [name, position] : request.params) {
        if (!switches.set(name, position)) {
            response.status = 400;
            response.set_content("Não existe esta chave ou esta posição.\n", plainText);
        }
    }
    shelf.wake();
}

json PageServer::Serving::stateOf() const
{
    const Switches::Positions at = switches.positions();
    json models = json::array();
    std::istringstream names(virtual_printer::modelNames());
    for (std::string name; names >> name;) {
        models.push_back(name);
    }
    return {{"endereco", printerAddress},
            {"modelos", models},
            {"modelo", at.model},
            {"papel", at.state.paperOut       ? "sem"
                      : at.state.paperNearEnd ? "acabando"
                                              : "tem"},
            {"tampa", positionName(at.state.coverOpen, "fechada", "aberta")},
            {"gaveta", positionName(at.state.drawerOpen, "fechada", "aberta")},
            {"silencio", positionName(at.silent, "nao", "sim")},
            {"guardados", shelf.capacity()}};
}

void PageServer::Serving::streamEvents(httplib::Response& response)
{
    struct Stream {
        explicit Stream(std::atomic<int>& count) : counted(count) { ++counted; }
        ~Stream() { --counted; }
        Stream(const Stream&) = delete;
        Stream& operator=(const Stream&) = delete;

        std::atomic<int>& counted;
        ReceiptShelf::Version version = 0;
        std::string state;
    };
    const auto stream = std::make_shared<Stream>(streams);
    if (streams > mostEventStreams) {
        response.status = 503;
        response.set_content("Páginas abertas demais.\n", plainText);
        return;
    }
    response.set_chunked_content_provider(
        "text/event-stream", [this, stream](std::size_t, httplib::DataSink& sink) {
            if (ending || !sink.is_writable()) {
                return false;
            }
            const ReceiptShelf::News news = shelf.newsSince(
                stream->version, stream->version == 0 ? milliseconds(0) : milliseconds(1000));
            // A line that says nothing, so that a page that has gone is noticed.
            std::string told = ":\n\n";
            const std::string state = event("impressora", stateOf());
            if (state != stream->state) {
                told = stream->state = state;
            }
            if (news.version != stream->version) {
                json receipts = json::array();
                for (const ReceiptShelf::Kept& receipt : news.changed) {
                    receipts.push_back(summaryOf(*receipt));
                }
                told += event("cupons",
                              {{"primeiro", news.oldestId}, {"mudados", std::move(receipts)}});
                stream->version = news.version;
            }
            return !ending && sink.write(told.data(), told.size());
        });
}

PageServer::PageServer(std::uint16_t port, std::string printerAddress, ReceiptShelf& shelf,
                       Switches& switches)
    : m_serving(std::make_unique<Serving>(std::move(printerAddress), shelf, switches))
{
    m_serving->open(port);
}

PageServer::~PageServer() = default;

std::uint16_t PageServer::port() const
{
    return m_serving->port;
}

} // namespace printer_page
