// What a command tells: as text for people, or as JSON for programs, from the same calls.
#pragma once

#include "failure.h"

#include <functional>
#include <memory>
#include <nlohmann/json_fwd.hpp>
#include <string>
#include <string_view>
#include <vector>

namespace q7tool
{

using Json = nlohmann::ordered_json;
using Sink = std::function<void(std::string_view utf8)>;

struct Column {
    std::string key;   // for programs
    std::string title; // for people
};

/** Keys and labels are Portuguese; keys are ASCII in lower case with "_". */
class Answer
{
public:
    virtual ~Answer() = default;
    Answer() = default;
    Answer(const Answer&) = delete;
    Answer& operator=(const Answer&) = delete;

    /** What follows, up to endSection(), belongs under this title. */
    virtual void beginSection(const std::string& key, const std::string& title) = 0;
    virtual void endSection() = 0;

    /** One fact. words: the value for people, where its JSON form would not do. */
    virtual void fact(const std::string& key, const std::string& label, const Json& value,
                      const std::string& words = {}) = 0;

    /** Rows of one value per column. none: what to tell people when there are no rows. */
    virtual void table(const std::string& key, const std::vector<Column>& columns,
                       const std::vector<std::vector<Json>>& rows, const std::string& none) = 0;

    /** One of many things that are told as they come: a line of text, or a JSON object on a line of
     *  its own. A command that calls this calls nothing else before finish(). */
    virtual void record(const Json& object, const std::string& text) = 0;

    /** Text that programs do not need; may have several lines. */
    virtual void remark(const std::string& text) = 0;

    virtual bool isForPeople() const = 0;

    virtual void failed(const Failure& failure) = 0;
    /** Everything has been told. */
    virtual void finish(Exit exit) = 0;
};

std::unique_ptr<Answer> makeTextAnswer(Sink output, Sink errors);
std::unique_ptr<Answer> makeJsonAnswer(Sink output);

/** The code as a person reads it: "-3 (Q7_ERR_MODEL)". */
std::string codeInWords(const Failure& failure);

} // namespace q7tool
