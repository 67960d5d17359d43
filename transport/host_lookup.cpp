#include "host_lookup.h"

#include "library_hold.h"
#include "signal_block.h"
#include "socket_system.h"

#include <chrono>
#include <future>
#include <thread>

namespace q7
{

HostLookup lookUpHost(const QString& host, QDeadlineTimer deadline)
{
    QHostAddress numeric;
    if (numeric.setAddress(host))
        return {{numeric}, false};
    if (host.isEmpty())
        return {{}, false};

    std::packaged_task<std::vector<QHostAddress>()> task(
        [name = host.toLatin1()] { return systemLookUp(name); });
    std::future<std::vector<QHostAddress>> answer = task.get_future();
    std::thread resolver;
    {
        // The host's signals are for its own threads.
        const SignalBlock everySignal(SignalBlock::Every);
        resolver = std::thread(std::move(task));
    }
    if (answer.wait_for(std::chrono::milliseconds(deadline.remainingTime())) ==
        std::future_status::ready) {
        resolver.join();
        return {answer.get(), false};
    }
    // The resolver cannot be stopped; the code that it runs must outlive it.
    keepLibraryLoaded();
    resolver.detach();
    return {{}, true};
}

} // namespace q7
