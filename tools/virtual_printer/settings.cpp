#include "settings.h"

#include "code_table.h"

namespace virtual_printer
{
namespace
{

/** Sets to the value when it lies in the range. */
template <typename Target>
Taking setWithin(Target& target, unsigned value, unsigned lowest, unsigned highest)
{
    if (value < lowest || value > highest) {
        return Taking::OutOfRange;
    }
    target = static_cast<Target>(value);
    return Taking::Set;
}

template <typename Target, typename Value> Taking set(Target& target, Value value)
{
    target = static_cast<Target>(value);
    return Taking::Set;
}

} // namespace

Taking Settings::take(const Command& command)
{
    Taking taking = takeStyle(command);
    if (taking == Taking::SetsNothing) {
        taking = takeLayout(command);
    }
    return taking == Taking::SetsNothing ? takeSymbol(command) : taking;
}

Taking Settings::takeStyle(const Command& command)
{
    const unsigned argument = command.arg(0);
    switch (command.op) {
    case Op::PrintMode: // sets all five at once: what its bits leave out is switched off
        style.font = (argument & 0x01U) != 0 ? Font::B : Font::A;
        style.emphasised = (argument & 0x08U) != 0;
        style.heightFactor = (argument & 0x10U) != 0 ? 2 : 1;
        style.widthFactor = (argument & 0x20U) != 0 ? 2 : 1;
        style.underlineDots = (argument & 0x80U) != 0 ? 1 : 0;
        return Taking::Set;
    case Op::Font:
        return setWithin(style.font, command.argOrDigit(0), 0, 1);
    case Op::Underline:
        return setWithin(style.underlineDots, command.argOrDigit(0), 0, 2);
    case Op::CharacterSize:
        if ((argument & 0x88U) != 0) {
            return Taking::OutOfRange;
        }
        style.widthFactor = static_cast<int>(argument >> 4U) + 1;
        style.heightFactor = static_cast<int>(argument & 7U) + 1;
        return Taking::Set;
    case Op::Emphasis:
        return set(style.emphasised, argument & 1U);
    case Op::DoubleStrike:
        return set(style.doubleStrike, argument & 1U);
    case Op::Reverse:
        return set(style.reverse, argument & 1U);
    default:
        return Taking::SetsNothing;
    }
}

Taking Settings::takeLayout(const Command& command)
{
    const unsigned argument = command.arg(0);
    switch (command.op) {
    case Op::CharacterSpacing:
        return set(characterSpacing, argument);
    case Op::CodeTable:
        codeTable = argument;
        return hasCodeTable(argument) ? Taking::Set : Taking::UnknownCodeTable;
    case Op::Alignment:
        return setWithin(alignment, command.argOrDigit(0), 0, 2);
    case Op::DefaultLineSpacing:
        return set(lineSpacing, usualLineSpacing);
    case Op::LineSpacing:
        return set(lineSpacing, argument);
    case Op::TabStops:
        return set(tabColumns, command.data());
    case Op::LeftMargin:
        return set(leftMargin, command.arg16(0));
    case Op::PrintWidth:
        printWidth = static_cast<int>(command.arg16(0));
        return Taking::Set;
    default:
        return Taking::SetsNothing;
    }
}

Taking Settings::takeSymbol(const Command& command)
{
    const unsigned argument = command.arg(0);
    switch (command.op) {
    case Op::BarcodeHeight:
        return setWithin(barcodeHeight, argument, 1, 255);
    case Op::BarcodeModuleWidth:
        return setWithin(barcodeModule, argument, 1, 6);
    case Op::BarcodeTextPosition:
        return setWithin(barcodeTextPosition, command.argOrDigit(0), 0, 3);
    case Op::BarcodeTextFont:
        return setWithin(barcodeTextFont, command.argOrDigit(0), 0, 1);
    case Op::QrModuleSize:
        return setWithin(qrModule, argument, 1, 16);
    case Op::QrAltSettings:
        return setWithin(qrAltModule, command.arg(1), 1, 16);
    case Op::QrLevel: {
        unsigned level = 0;
        const Taking taking = setWithin(level, command.argOrDigit(0), 0, 3);
        qrLevel = taking == Taking::Set ? static_cast<QrLevel>(level + 1) : qrLevel;
        return taking;
    }
    case Op::QrStore:
        return set(qrData, command.data());
    default:
        return Taking::SetsNothing;
    }
}

} // namespace virtual_printer
