// Who makes the calls of a campaign: this process, or a program of its own that is told to.
#pragma once

#include "fake_printer.h"
#include "own_resources.h"
#include "sample_receipts.h"

#include <memory>

namespace q7test
{

/** Each call returns what the export did. */
class Till
{
public:
    virtual ~Till() = default;
    virtual int open(const FakePrinter& printer) = 0;
    virtual int print(const SampleReceipt& receipt) = 0;
    virtual int printText() = 0;
    virtual int status() = 0;
    virtual int close() = 0;

    /** Remembers what its process holds of the system. */
    virtual void look() = 0;
    /** Whether it holds as much again. */
    virtual bool isAsBefore() = 0;
};

/** This process, with the library that it is linked with. */
std::unique_ptr<Till> ownTill();

/** tests/windows/session.c, run by that command of the shell in the project's folder.
 *  Throws std::runtime_error where it does not run; its calls do, once it has ended. */
std::unique_ptr<Till> toldTill(const std::string& command);

} // namespace q7test
