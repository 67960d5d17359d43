// Mutations that keep much of a document standing: what an element is moved to, or filled with.
#pragma once

#include <cstddef>
#include <cstdint>

namespace q7test
{

/** As LLVMFuzzerCustomMutator, for XML. */
std::size_t mutateXml(std::uint8_t* data, std::size_t size, std::size_t mostSize, unsigned seed);

} // namespace q7test
