target_sources(planovarium_windows PRIVATE
  customise/frmColors.cpp
  customise/frmColors.h
  customise/frmColors.ui
  customise/frmColorsName.cpp
  customise/frmColorsName.h
  customise/frmColorsName.ui
)
