/// The statements of the stores, composed as text and executed. Nothing is escaped: a value with an
/// apostrophe breaks its statement, and the engine's error says where.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "jet/connection.h"
#include "jet/recordset.h"
#include "program/program.h"
#include "store/schema.h"

namespace terravane {

struct Assignment {
    std::string column;
    std::string value;
};

/// "SELECT * from HEAD'": the stray apostrophe is part of every query's text and the engine takes it as it
/// is. No query sorts; rows come in the order of insertion.
std::string SelectAll(std::string_view table);

/// "UPDATE HEAD Set Project_Client ='...',  Project_Name ='...',  Project_Location ='...',  Project_Number =
/// '...'": no Where, the one row is meant.
std::string UpdateHead(std::string_view client, std::string_view project, std::string_view location,
                       std::string_view number);

/// "UPDATE t Set a ='...',  b ='...' Where key =' 1'".
std::string UpdateRow(const TableSchema& table, const std::vector<Assignment>& assignments, int row);

/// Makes a new connection to the current project file in ProjectConnection; the engine's error where that
/// file is missing or no database.
void OpenProjectConnection(Program& program);

/// The same for the brand store in BrandFolder; "Logo.mdb" and "logo.mdb" are one file.
void OpenBrandConnection(Program& program);

/// Executes a query. Its rows are the caller's, at the first one; another query leaves them as they are.
jet::Recordset Query(Program& program, jet::Connection& connection, std::string statement);

/// Executes a statement.
void Execute(Program& program, jet::Connection& connection, std::string statement);

/// A result and the column of SUMMARY that takes it, without the table's prefix.
struct PostedText {
    std::string_view column;
    std::string text;
};

/// The first value in SUMMARY that posting these results of the current material would replace by an empty text,
/// without blanks at its ends; empty where there is none.
std::string PostedValueEmptiedBy(Program& program, const std::vector<PostedText>& results);

/// Posts results of the current material into SUMMARY, in one statement on a connection of its own. They
/// reach the file at the end of the command.
void PostSummary(Program& program, const std::vector<PostedText>& results);

}  // namespace terravane
