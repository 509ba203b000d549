# Sets the four variables that the smart drive's launcher sets, for the drive in the folder $1. Sourced.
export U3_DEVICE_PATH="$1"
export U3_DEVICE_EXEC_PATH="$1/Planovarium"
export U3_DEVICE_DOCUMENT_PATH="$1/Documents"
export U3_HOST_EXEC_PATH="$1/Host"
mkdir -p "$U3_HOST_EXEC_PATH"
