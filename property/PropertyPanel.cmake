# The property panel around the feature tree: its pages, the quick-settings
# and image-format pages, the user-set dialog and the device parameter files.
add_library(lumidor_propertypanel STATIC
  ${CMAKE_CURRENT_LIST_DIR}/CFeatureControlWorker.cpp ${CMAKE_CURRENT_LIST_DIR}/CFeatureControlWorker.h
  ${CMAKE_CURRENT_LIST_DIR}/CFeatureControlPage.cpp ${CMAKE_CURRENT_LIST_DIR}/CFeatureControlPage.h
  ${CMAKE_CURRENT_LIST_DIR}/CPropertySettingsForm.cpp ${CMAKE_CURRENT_LIST_DIR}/CPropertySettingsForm.h
  ${CMAKE_CURRENT_LIST_DIR}/CPropertyImageFormatForm.cpp ${CMAKE_CURRENT_LIST_DIR}/CPropertyImageFormatForm.h
  ${CMAKE_CURRENT_LIST_DIR}/CSaveFeaturesDlg.cpp ${CMAKE_CURRENT_LIST_DIR}/CSaveFeaturesDlg.h
  ${CMAKE_CURRENT_LIST_DIR}/CDeviceParamFile.cpp ${CMAKE_CURRENT_LIST_DIR}/CDeviceParamFile.h
  ${CMAKE_CURRENT_LIST_DIR}/CParamFileNodeMap.cpp ${CMAKE_CURRENT_LIST_DIR}/CParamFileNodeMap.h
  ${CMAKE_CURRENT_LIST_DIR}/CParamFileThread.cpp ${CMAKE_CURRENT_LIST_DIR}/CParamFileThread.h
  ${CMAKE_CURRENT_LIST_DIR}/CParamFileSaveThread.cpp ${CMAKE_CURRENT_LIST_DIR}/CParamFileSaveThread.h
  ${CMAKE_CURRENT_LIST_DIR}/CParamFileLoadThread.cpp ${CMAKE_CURRENT_LIST_DIR}/CParamFileLoadThread.h
  ${CMAKE_CURRENT_LIST_DIR}/CParamFileController.cpp ${CMAKE_CURRENT_LIST_DIR}/CParamFileController.h
  ${CMAKE_CURRENT_LIST_DIR}/CPropertyForm.cpp ${CMAKE_CURRENT_LIST_DIR}/CPropertyForm.h)
target_include_directories(lumidor_propertypanel PUBLIC ${CMAKE_CURRENT_LIST_DIR})
target_link_libraries(lumidor_propertypanel PUBLIC lumidor_property lumidor_device lumidor_discovery lumidor_config
  lumidor_core lumidor_widgets lumidor_icons vorlen tavlog Qt5::Widgets)
