// What the programs of the suite say of themselves on a command line, in Hungarian.
#pragma once

#include <QCommandLineParser>

namespace cserko {

/// Exit status of a command line that cannot be understood.
inline constexpr int wrong_use = 2;

/// What a person types to start the program that runs; an application object must be there.
QString program_name();

/// Whether one of the words asks for help or the version. Such a program needs no screen.
bool asks_about_program(int argc, char** argv);

/// Reads the command line of the application object that is there, by a parser that has its description and options.
/// Where help or the version is asked for it writes these and ends the process with 0; where the command line cannot be
/// understood, it writes a sentence to the standard error and ends the process with `wrong_use`. `notes` stand below
/// the options in the help.
void read_command_line(QCommandLineParser& parser, const QString& notes);

} // namespace cserko
