// A far end that answers nothing, not even a connection.
#pragma once

namespace q7test
{

/** A port of 127.0.0.1 that lets connections neither succeed nor fail: the queue of those that nobody
 *  accepts is full, until the process ends. */
int deafPort();

} // namespace q7test
