:c:Older
:v1:,1
:v2:,0
:n1:,2
:n2:,1
:lo:,0
:mc:,3
