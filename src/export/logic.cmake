target_sources(planovarium_logic PRIVATE
  export/CalendarDays.cpp
  export/CalendarPages.cpp
  export/CalendarTables.cpp
  export/HtmlEscape.cpp
  export/ListCells.cpp
  export/ListPages.cpp
  export/Pages.cpp
  export/TemplateCommands.cpp
)
