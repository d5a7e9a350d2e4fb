#include "cli/run.h"

#include <exception>
#include <variant>

#include "cli/arguments.h"
#include "cli/chosen_place.h"
#include "cli/day_json.h"
#include "cli/day_table.h"
#include "cli/failure.h"
#include "foundation/error.h"
#include "words/clock_text.h"

namespace cli {
namespace {

using std::chrono::days;
using std::chrono::local_days;

void Write(std::ostream& output, const std::string& text) {
  if (!(output << text)) throw Failure(Status::Impossible, "the output cannot be written");
}

class DaysCommand {
 public:
  DaysCommand(const DaysRequest& request, foundation::Settings& settings, clocks::Instant now)
      : request_(request), chosen_(FindPlace(request.place, settings)) {
    const auto today = std::chrono::floor<days>(chosen_.clock.CivilAt(now));
    from_ = request.from.value_or(today);
    to_ = request.to.value_or(today);
    if (request.oneDay && !chosen_.clock.HasDate(from_)) {
      throw Failure(Status::Impossible, "the clock of " + PlaceName(chosen_.place) + " skips " +
                                            words::DateText(from_));
    }
  }

  void Run(std::ostream& output, std::ostream& errors) const {
    if (!chosen_.note.empty()) errors << ErrorLine(chosen_.note);
    if (!request_.oneDay && !request_.json) Write(output, DaysHead(chosen_));
    for (local_days date = from_; date <= to_; date += days(1)) {
      if (chosen_.clock.HasDate(date)) Write(output, Text(date));
    }
  }

 private:
  std::string Text(local_days date) const {
    const day::Day value = day::DayOf(chosen_.place, chosen_.clock, date);
    if (request_.json) return DayJson(chosen_.place, chosen_.clock, value) + "\n";
    return request_.oneDay ? DayTable(chosen_, value) : DaysRow(chosen_, value);
  }

  const DaysRequest& request_;
  ChosenPlace chosen_;
  local_days from_, to_;
};

void Answer(const Request& request, foundation::Settings& settings, clocks::Instant now,
            std::ostream& output, std::ostream& errors) {
  if (const auto* text = std::get_if<TextRequest>(&request)) {
    Write(output, text->text);
  } else {
    DaysCommand(std::get<DaysRequest>(request), settings, now).Run(output, errors);
  }
  output.flush();
  Write(output, "");
}

}  // namespace

int Run(const std::vector<std::string>& arguments, foundation::Settings& settings,
        clocks::Instant now, std::ostream& output, std::ostream& errors) {
  Status status = Status::Impossible;
  try {
    Answer(ReadArguments(arguments), settings, now, output, errors);
    return static_cast<int>(Status::Done);
  } catch (const Failure& failure) {
    status = failure.ExitStatus();
    errors << ErrorLine(failure.what());
  } catch (const std::exception& error) {
    errors << ErrorLine(error.what());
  }
  return static_cast<int>(status);
}

}  // namespace cli
