#include "store/data_list.h"

namespace orlin {

void DataList::SetNetWorkDListPath(const std::string& path) { setup_.NetWorkDListPath = path; }
void DataList::SetLocalDListPath(const std::string& path) { setup_.LocalDListPath = path; }
void DataList::SetTimeOutInterval(std::int16_t seconds) { setup_.TimeOutInterval = seconds; }
void DataList::SetMaxTimeOut(std::int16_t seconds) { setup_.MaxTimeOut = seconds; }
void DataList::SetBackupMode(std::int16_t mode) { setup_.BackupMode = mode; }
void DataList::SetUserID(const std::string& id) { setup_.UserID = id; }
void DataList::SetWorkstationName(const std::string& name) { setup_.WorkstationName = name; }
void DataList::SetWarningLevel(std::int16_t level) { setup_.WarningLevel = level; }
void DataList::SetPassword(const std::string& password) { setup_.Password = password; }

}  // namespace orlin
