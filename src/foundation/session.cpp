#include "foundation/session.h"

namespace foundation {

void InitSessionRecord(SessionTable& session, DateTime now) {
  SessionRecord& record = session.Current();
  if (record.Day != 0) return;
  const DateTimeFields moment = FieldsOf(now);
  record.PersonName.clear();
  record.RecordFlag = kTrue16;
  record.Day = moment.day;
  record.Month = moment.month;
  record.Year = moment.year;
  record.Hour = moment.hour;
  record.Minute = moment.minute;
  record.Second = moment.second;
  record.AyanamsaChoice = 0;
  record.RahuKetuFlag = kTrue16;
}

}  // namespace foundation
