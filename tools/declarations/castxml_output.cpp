#include "castxml_output.h"

#include <QXmlStreamReader>
#include <algorithm>
#include <map>
#include <stdexcept>

namespace q7decl
{
namespace
{

std::string attribute(const QXmlStreamReader& xml, const char* name)
{
    return xml.attributes().value(QLatin1String(name)).toString().toStdString();
}

/** Types refer to one another by identifiers that may come later; names are made at the end. */
class Types
{
public:
    void add(const QXmlStreamReader& xml)
    {
        const QStringRef element = xml.name();
        const std::string id = attribute(xml, "id");
        if (element == QLatin1String("FundamentalType"))
            named[id] = attribute(xml, "name");
        else if (element == QLatin1String("PointerType"))
            pointers[id] = attribute(xml, "type");
        else if (element == QLatin1String("CvQualifiedType"))
            constants[id] = attribute(xml, "type");
    }

    std::string nameOf(const std::string& id) const
    {
        if (const auto pointer = pointers.find(id); pointer != pointers.end())
            return nameOf(pointer->second) + "*";
        if (const auto constant = constants.find(id); constant != constants.end())
            return "const " + nameOf(constant->second);
        const auto fundamental = named.find(id);
        return fundamental == named.end() ? "type " + id : fundamental->second;
    }

private:
    std::map<std::string, std::string> named;
    std::map<std::string, std::string> pointers;
    std::map<std::string, std::string> constants;
};

template <typename Declaration> void sortByLine(std::vector<Declaration>& declarations)
{
    std::sort(declarations.begin(), declarations.end(),
              [](const auto& left, const auto& right) { return left.line < right.line; });
}

} // namespace

Declared readCastxml(const std::string& output)
{
    Declared declared;
    Types types;
    std::map<std::string, CommentRange> comments;
    std::map<int, std::string> commentOfLine; // castxml names it before it gives its place

    QXmlStreamReader xml(QByteArray::fromStdString(output));
    const auto start = [&](auto& declarations) -> auto&
    {
        auto& declaration = declarations.emplace_back();
        declaration.name = attribute(xml, "name");
        declaration.line = std::stoi(attribute(xml, "line"));
        commentOfLine[declaration.line] = attribute(xml, "comment");
        return declaration;
    };
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        types.add(xml);
        const QStringRef element = xml.name();
        if (element == QLatin1String("Function"))
            start(declared.functions).resultType = attribute(xml, "returns");
        else if (element == QLatin1String("Argument"))
            declared.functions.back().arguments.push_back(
                {attribute(xml, "name"), attribute(xml, "type")});
        else if (element == QLatin1String("Enumeration"))
            start(declared.enumerations);
        else if (element == QLatin1String("EnumValue"))
            declared.enumerations.back().values.push_back(
                {attribute(xml, "name"), std::stol(attribute(xml, "init"))});
        else if (element == QLatin1String("Comment"))
            comments[attribute(xml, "id")] = {std::stoul(attribute(xml, "begin_offset")),
                                              std::stoul(attribute(xml, "end_offset"))};
    }
    if (xml.hasError() || declared.functions.empty())
        throw std::runtime_error("not castxml's output: " + xml.errorString().toStdString());

    for (DeclaredFunction& function : declared.functions) {
        function.comment = comments[commentOfLine[function.line]];
        function.resultType = types.nameOf(function.resultType);
        for (DeclaredArgument& argument : function.arguments)
            argument.type = types.nameOf(argument.type);
    }
    for (DeclaredEnumeration& enumeration : declared.enumerations)
        enumeration.comment = comments[commentOfLine[enumeration.line]];
    sortByLine(declared.functions);
    sortByLine(declared.enumerations);
    return declared;
}

} // namespace q7decl
