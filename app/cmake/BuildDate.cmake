# cmake -DOUTPUT=<file> -P BuildDate.cmake
#
# Writes the definition of BuildConfig::buildDate() with the date of this build,
# yyyyMMdd in UTC; string(TIMESTAMP) takes SOURCE_DATE_EPOCH instead of the clock
# when it is set, so a reproducible build carries the date of its sources. The
# file is rewritten only when its text changes: a build on the same day compiles
# nothing again.
string(TIMESTAMP date "%Y%m%d" UTC)
set(content "#include \"app/BuildConfig.h\"

const QString& BuildConfig::buildDate() {
    static const QString date = QStringLiteral(\"${date}\");
    return date;
}
")
if(EXISTS "${OUTPUT}")
    file(READ "${OUTPUT}" previous)
    if(previous STREQUAL content)
        return()
    endif()
endif()
file(WRITE "${OUTPUT}" "${content}")
