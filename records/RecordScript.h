#pragma once

#include <deque>
#include <memory>
#include <string>

#include "forms/play/RecordCommands.h"
#include "records/Finder.h"
#include "records/RecordForm.h"

namespace kel::records {

/// The records of a form, worked by a play script, which also answers what a person would be asked.
class RecordScript final : public RecordCommands, private Questions {
public:
    /// The store outlives it.
    RecordScript(Store& store, std::u16string table, const RegionalSettings& region)
        : Store_(&store), TableName_(std::move(table)), Region_(&region) {}

    void formOpened(Form& form) override;
    void formCloses() override;
    void run(std::u16string_view command, const Print& print) override;

private:
    Unsaved aboutUnsaved() override;
    bool reallyDelete() override;
    std::optional<std::vector<Choice>> aboutDifferences(const std::vector<Difference>& differences) override;
    bool keepDeleted() override;
    void say(std::u16string_view message) override;

    /// One that is a single word.
    bool runAlone(std::u16string_view verb, std::u16string_view rest);
    bool runMove(std::u16string_view verb, std::u16string_view rest);
    bool runChange(std::u16string_view verb, std::u16string_view rest);
    bool find(std::u16string_view text);
    void answer(std::u16string_view rest);
    void printRecord();
    /// The next answer that the script has given to a question, which is printed with it.
    std::u16string answered(std::u16string_view question, std::u16string_view byDefault);

    Store* Store_;
    std::u16string TableName_;
    const RegionalSettings* Region_;
    std::unique_ptr<RecordStore> Records_;
    std::unique_ptr<RecordForm> Form_;
    std::u16string Sought_;
    std::deque<std::u16string> Answers_;
    Print Print_ = [](const std::u16string&) {};
};

}  // namespace kel::records
