# Makes one page of the guide: CMARK_GFM turns CAPITOLO into HTML, pagina.html.in puts it into PAGINA.
execute_process(COMMAND ${CMARK_GFM} --extension table --to html ${CAPITOLO}
    OUTPUT_VARIABLE corpo COMMAND_ERROR_IS_FATAL ANY)
# The chapters refer to each other as files that are read in Markdown too.
string(REGEX REPLACE "(href=\"[a-z-]+)\\.md\"" "\\1.html\"" corpo "${corpo}")
string(REGEX MATCH "<h1>([^<]*)</h1>" titolo "${corpo}")
set(titolo "${CMAKE_MATCH_1}")
configure_file(${CMAKE_CURRENT_LIST_DIR}/pagina.html.in ${PAGINA} @ONLY)
file(TOUCH_NOCREATE ${PAGINA})
