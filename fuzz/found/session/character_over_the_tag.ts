:c:Turn, then wait
:c:---
:v1id:,ALB
:v1rf:,112.30
:v2id:,BRK@r
:v2fr:,108.40
:n1id:,CA@l
:n1fr:﻿<<<<<<<<<<<<<<<<<1<<<<<<<<<<r<<<:c:Köl
:v1fr:,112.30
:v2id:,BRK@rn
:c:日本
:0c:Turn, then wait
:c:---	
:vRK@r
:v2fr:,108.40
:n1id

1
---