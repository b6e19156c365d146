" Colours for the macros of morvane. Made by tools/reference_writer; edit the rows, not this file.
if exists("b:current_syntax")
  finish
endif

syn case ignore
syn iskeyword @,48-57,_,.

syn keyword morvaneCommand bin.to.txt binary.to.text blob.count blob.get blob.pos blob.replace clean
syn keyword morvaneCommand clear color.alpha.black color.alpha.bw color.alpha.gray color.alpha.wb
syn keyword morvaneCommand color.alpha.white color.getrgb color.getrgb.hash color.getrgba
syn keyword morvaneCommand color.getrgba.hash color.map.art color.map.chart1 color.map.chart2
syn keyword morvaneCommand color.map.default color.map.length color.map.name color.map.special
syn keyword morvaneCommand color.map.topo color.map.volume1 color.map.volume2 color.map.warn
syn keyword morvaneCommand datestamp day debug debug.no delay dump dump.all dump.func dump.line
syn keyword morvaneCommand dump.modul dump.modulus dump.output dump.prog dump.redo dump.stack
syn keyword morvaneCommand dump.undo dump.used dump.var dump.var.scope dump.vars.scope dump.with
syn keyword morvaneCommand dump.xml echo freeimage.disable freeimage.enable hour image.16bit
syn keyword morvaneCommand image.24bit image.32bit image.40bit image.8bit image.add image.add.max
syn keyword morvaneCommand image.add.min image.analysis image.analysis.image image.analysis.raw
syn keyword morvaneCommand image.background image.between image.center image.centroid image.clean
syn keyword morvaneCommand image.cleanup image.clear image.close image.cog image.colorize
syn keyword morvaneCommand image.combine image.copy image.copy.label image.copy.method image.count
syn keyword morvaneCommand image.crop image.diffusion image.diffusion.angle image.diffusion.axial
syn keyword morvaneCommand image.diffusion.axis image.diffusion.max image.diffusion.method
syn keyword morvaneCommand image.dilate image.distance image.div image.dump image.erode
syn keyword morvaneCommand image.extract.color image.extract.colorpoint image.fill image.fill.cube
syn keyword morvaneCommand image.fill.gap image.fill.hole image.fill.random image.fill.zero
syn keyword morvaneCommand image.filter image.flip.x image.flip.y image.fulldilate image.fullerode
syn keyword morvaneCommand image.fullgrow image.fullscan image.fullshrink image.g2l
syn keyword morvaneCommand image.getbackground image.getsphere image.group image.group.add
syn keyword morvaneCommand image.group.min image.group.minmax image.group.sort.border
syn keyword morvaneCommand image.group.sort.count image.group.sort.fraction
syn keyword morvaneCommand image.group.sort.fraction.log image.group.sort.inverse image.group.stat
syn keyword morvaneCommand image.group.unsort image.grow image.hardsmooth image.histogram
syn keyword morvaneCommand image.histogram.image image.histogram.raw image.horizontal.mean
syn keyword morvaneCommand image.horizontal.sd image.horizontal.sum image.ifimage image.ifplain
syn keyword morvaneCommand image.intensity image.invert image.l2g image.load image.loadbmp
syn keyword morvaneCommand image.loadimgf image.loadpnm image.loadraw image.loadrgb image.mask
syn keyword morvaneCommand image.mask.different image.mask.same image.matrix image.matrix.v1
syn keyword morvaneCommand image.matrix.v2 image.matrix.v3 image.max image.mean image.median
syn keyword morvaneCommand image.min image.mul image.name image.new image.object.center
syn keyword morvaneCommand image.object.size image.offset image.offset.center image.open
syn keyword morvaneCommand image.origin image.origin.center image.over image.quantile image.radial
syn keyword morvaneCommand image.radial.half image.radial.quater image.remove.outliers image.resize
syn keyword morvaneCommand image.rotate.180 image.rotate.270 image.rotate.360 image.rotate.90
syn keyword morvaneCommand image.save image.scale image.select image.setadjust image.setadjust.one
syn keyword morvaneCommand image.setadjust.outliers image.setadjust.percentage
syn keyword morvaneCommand image.setadjust.percentage.weak image.setbalance
syn keyword morvaneCommand image.setbalance.highlights image.setbalance.midtones
syn keyword morvaneCommand image.setbalance.shadows image.setcrop image.setequal image.setgray
syn keyword morvaneCommand image.sethdrgray image.sethigher image.setlower image.setmax.blue
syn keyword morvaneCommand image.setmax.cyan image.setmax.green image.setmax.purple image.setmax.red
syn keyword morvaneCommand image.setmax.yellow image.setmin.blue image.setmin.cyan
syn keyword morvaneCommand image.setmin.green image.setmin.purple image.setmin.red
syn keyword morvaneCommand image.setmin.yellow image.setmono image.setpeak.local
syn keyword morvaneCommand image.setpeak.localblue image.setpeak.localgreen image.setpeak.localred
syn keyword morvaneCommand image.setpeakhigher image.setpeaklower image.setpeakmiddle image.setrange
syn keyword morvaneCommand image.setsign image.setvalue image.shrink image.size image.smooth
syn keyword morvaneCommand image.softsmooth image.split.color image.split.colorpoint
syn keyword morvaneCommand image.split.rainbow image.split.rainbow.shift image.split.rgb
syn keyword morvaneCommand image.split.rgba image.stacking image.statistic image.sub image.sub.abs
syn keyword morvaneCommand image.sub.range image.subimage image.subimage.rel image.submethod
syn keyword morvaneCommand image.sum image.swap image.unflip image.unrotate image.unsharpmasking
syn keyword morvaneCommand image.use image.value image.vertical.mean image.vertical.sd
syn keyword morvaneCommand image.vertical.sum image.window.cos image.window.sin imagemagick.disable
syn keyword morvaneCommand imagemagick.enable io.align io.dir.change io.dir.copy io.dir.delete
syn keyword morvaneCommand io.dir.erase io.dir.hardchange io.dir.harddelete io.dir.harderase
syn keyword morvaneCommand io.dir.hardremove io.dir.make io.dir.remove io.dir.rename io.dirs
syn keyword morvaneCommand io.dirs.add io.dirs.before io.dirs.clear io.dirs.complete
syn keyword morvaneCommand io.dirs.complete.add io.dirs.first io.dirs.flip io.dirs.get io.dirs.last
syn keyword morvaneCommand io.dirs.length io.dirs.new io.dirs.next io.dirs.number io.dirs.radd
syn keyword morvaneCommand io.dirs.rest io.dirs.rnew io.dirs.size io.dirs.sort io.dirs.sort.date
syn keyword morvaneCommand io.dirs.sort.real io.dirs.sub io.dirs.subweak io.dirs.to.list
syn keyword morvaneCommand io.file.copy io.file.copy.method io.file.copy.to io.file.delete
syn keyword morvaneCommand io.file.erase io.file.getage io.file.getattr io.file.getsize io.file.join
syn keyword morvaneCommand io.file.move io.file.move.to io.file.remove io.file.rename io.file.repair
syn keyword morvaneCommand io.files io.files.add io.files.add.fromfile io.files.before
syn keyword morvaneCommand io.files.clear io.files.first io.files.flip io.files.fromfile
syn keyword morvaneCommand io.files.get io.files.getdir io.files.getextension io.files.getfile
syn keyword morvaneCommand io.files.getfileextension io.files.getname io.files.getprec
syn keyword morvaneCommand io.files.getshort io.files.getsucc io.files.last io.files.length
syn keyword morvaneCommand io.files.new io.files.next io.files.number io.files.replacetxt
syn keyword morvaneCommand io.files.rest io.files.size io.files.sort io.files.sort.date
syn keyword morvaneCommand io.files.sort.real io.files.sort.size io.files.sub io.files.subweak
syn keyword morvaneCommand io.files.to.list io.fileshort io.getbash io.getdir io.getfile
syn keyword morvaneCommand io.getfileextension io.getfilename io.getfullfileextension io.getshortdir
syn keyword morvaneCommand io.getshortfilename io.sorting io.workdir leapyear line.center
syn keyword morvaneCommand line.center.objects line.clean line.clear line.copy line.copyscale
syn keyword morvaneCommand line.discrete line.discrete.3d line.distance line.draw line.draw.cube
syn keyword morvaneCommand line.draw.cube.solid line.draw.line line.draw.line.solid line.draw.point
syn keyword morvaneCommand line.draw.point.solid line.draw.solid line.draw.sphere
syn keyword morvaneCommand line.draw.sphere.solid line.draw.t line.draw.value line.draw.value.t
syn keyword morvaneCommand line.dump line.erase.duplicates line.erase.duplicates.begin
syn keyword morvaneCommand line.erase.duplicates.near line.erase.length.max line.erase.length.min
syn keyword morvaneCommand line.erase.t.max line.erase.t.min line.length line.line.lines
syn keyword morvaneCommand line.line.objects line.line.points line.load line.max.t
syn keyword morvaneCommand line.mean.duplicates.near line.mean.t line.median.t line.min.t line.name
syn keyword morvaneCommand line.new line.number line.object.name line.save line.save.dxf
syn keyword morvaneCommand line.save.maya line.save.mv3d line.save.obj line.save.swc
syn keyword morvaneCommand line.save.trackvis line.save.txt line.save.vtk line.save.vtp
syn keyword morvaneCommand line.savemaya line.savetrackvis line.savetxt line.sd.t line.swap line.use
syn keyword morvaneCommand line.vector.invert line.vector.maxscale line.vector.minscale
syn keyword morvaneCommand line.vector.negate line.vector.norm line.vector.normscale
syn keyword morvaneCommand line.vector.scale list.background list.before list.chars list.clean
syn keyword morvaneCommand list.clear list.complex list.copy list.delete list.dump list.first
syn keyword morvaneCommand list.flip list.get list.hyper list.iflist list.insert list.kind list.last
syn keyword morvaneCommand list.length list.load list.longest list.max list.mean list.min list.name
syn keyword morvaneCommand list.nat list.new list.next list.outlier list.outlier.baseline
syn keyword morvaneCommand list.outlier.factor list.pop list.position list.push list.put list.real
syn keyword morvaneCommand list.save list.save.table list.sd list.shortest list.size list.smooth
syn keyword morvaneCommand list.sort list.sort.real list.swap list.to.io.dirs list.to.io.files
syn keyword morvaneCommand list.to.stack list.use list.value list.vector math.angle math.decimal
syn keyword morvaneCommand math.degree math.digit math.leading math.length math.matrix math.maxnorm
syn keyword morvaneCommand math.minnorm math.norm math.scientific math.trailing math.vector matrix
syn keyword morvaneCommand matrix.e1 matrix.e2 matrix.e3 matrix.eigen matrix.ev1 matrix.ev2
syn keyword morvaneCommand matrix.ev3 matrix.fa matrix.inverse matrix.join matrix.move
syn keyword morvaneCommand matrix.move.get matrix.rotation matrix.rotation.get matrix.scale
syn keyword morvaneCommand matrix.scale.get matrix.space matrix.trace matrix.transform
syn keyword morvaneCommand matrix.transpose matrix.v1 matrix.v2 matrix.v3 matrix.v4 matrix.vector
syn keyword morvaneCommand matrix2quat max mesh.clean mesh.clear mesh.dump mesh.name mesh.new
syn keyword morvaneCommand mesh.swap mesh.use milliscond min minmax minute month new nop print
syn keyword morvaneCommand print.blue print.cyan print.green print.purple print.red print.yellow
syn keyword morvaneCommand progress quat quat.angle quat.conjugate quat.join quat.mul quat.transform
syn keyword morvaneCommand quat.vector quat2matrix random random.byte random.full random.fullgray
syn keyword morvaneCommand random.gray random.range random.range.nat random.rgb random.rgba
syn keyword morvaneCommand random.word random2 random2.full random3 random3.full random4
syn keyword morvaneCommand random4.full run scalar.16bit scalar.1bit scalar.8bit scalar.analysis
syn keyword morvaneCommand scalar.analysis.image scalar.analysis.raw scalar.background scalar.bool
syn keyword morvaneCommand scalar.byte scalar.center scalar.clean scalar.clear scalar.copy.method
syn keyword morvaneCommand scalar.copy.xy scalar.copy.xz scalar.copy.yz scalar.count
syn keyword morvaneCommand scalar.diffusion scalar.diffusion.adaptive.x2
syn keyword morvaneCommand scalar.diffusion.adaptive.x3 scalar.diffusion.adaptive.x4
syn keyword morvaneCommand scalar.diffusion.adaptive.x5 scalar.diffusion.angle
syn keyword morvaneCommand scalar.diffusion.colormap scalar.diffusion.dump
syn keyword morvaneCommand scalar.diffusion.histogram scalar.diffusion.map scalar.diffusion.max
syn keyword morvaneCommand scalar.diffusion.method scalar.diffusion.sd scalar.diffusion.x2
syn keyword morvaneCommand scalar.diffusion.x3 scalar.diffusion.x4 scalar.diffusion.x5 scalar.dump
syn keyword morvaneCommand scalar.fullscan scalar.g2l scalar.getskeleton scalar.histogram
syn keyword morvaneCommand scalar.histogram.fast scalar.histogram.image scalar.histogram.raw
syn keyword morvaneCommand scalar.ifplain scalar.ifscalar scalar.info scalar.insert.xy
syn keyword morvaneCommand scalar.insert.xz scalar.insert.yz scalar.invert scalar.l2g scalar.label
syn keyword morvaneCommand scalar.labels.clean scalar.labels.clear scalar.labels.dump
syn keyword morvaneCommand scalar.labels.length scalar.labels.new scalar.line.skeleton scalar.load
syn keyword morvaneCommand scalar.load.filter scalar.load.framework scalar.load.hdr
syn keyword morvaneCommand scalar.load.labels scalar.load.nii scalar.load.nii.gz
syn keyword morvaneCommand scalar.load.properties scalar.loadhdr scalar.loadnii scalar.loadnii.gz
syn keyword morvaneCommand scalar.make scalar.make.scalar scalar.make.vector scalar.matrix
syn keyword morvaneCommand scalar.matrix.v1 scalar.matrix.v2 scalar.matrix.v3 scalar.max scalar.min
syn keyword morvaneCommand scalar.name scalar.nat scalar.new scalar.offset scalar.offset.add
syn keyword morvaneCommand scalar.offset.center scalar.origin scalar.origin.center scalar.save
syn keyword morvaneCommand scalar.save.labels scalar.save.properties scalar.scale scalar.scale.mul
syn keyword morvaneCommand scalar.scale.norm scalar.sethigher scalar.setlower scalar.setvalue
syn keyword morvaneCommand scalar.size scalar.submethod scalar.sum scalar.swap scalar.unflip
syn keyword morvaneCommand scalar.unrotate scalar.use scalar.value scalar.word scalar.xy scalar.xz
syn keyword morvaneCommand scalar.yz second sleep stack stack.clean stack.clear stack.flip
syn keyword morvaneCommand stack.length stack.size stack.to.list stop table.addrow table.clean
syn keyword morvaneCommand table.clear table.column.to.list table.columns.to.array
syn keyword morvaneCommand table.columns.to.constant table.dump table.find table.get table.getstat
syn keyword morvaneCommand table.header table.iftable table.lengthx table.lengthy table.load
syn keyword morvaneCommand table.load.comment table.name table.new table.put table.row.to.list
syn keyword morvaneCommand table.rows.to.array table.rows.to.constant table.save table.save.data
syn keyword morvaneCommand table.save.transposed table.setjoin table.setmethod table.sizex
syn keyword morvaneCommand table.sizey table.swap table.use tensor.dump tensor.float tensor.int32
syn keyword morvaneCommand tensor.int64 tensor.integer tensor.name tensor.nat tensor.swap tensor.use
syn keyword morvaneCommand text.collect text.collect.append text.count text.delete.after
syn keyword morvaneCommand text.delete.before text.delete.line text.delete.other text.filter
syn keyword morvaneCommand text.filter.not text.find text.find.all text.ignore.after
syn keyword morvaneCommand text.ignore.before text.replace text.split text.split.file
syn keyword morvaneCommand text.split.file.after text.split.file.before timer.get timer.start
syn keyword morvaneCommand timestamp txt.collect txt.collect.append txt.count txt.delete.after
syn keyword morvaneCommand txt.delete.before txt.delete.line txt.delete.other txt.filter
syn keyword morvaneCommand txt.filter.not txt.find txt.find.all txt.ignore.after txt.ignore.before
syn keyword morvaneCommand txt.replace txt.split txt.split.file txt.split.file.after
syn keyword morvaneCommand txt.split.file.before vector.24bit vector.add vector.analysis
syn keyword morvaneCommand vector.analysis.image vector.analysis.raw vector.append
syn keyword morvaneCommand vector.append.best vector.append.zero vector.background vector.center
syn keyword morvaneCommand vector.clean vector.cleanup vector.clear vector.copy vector.copy.method
syn keyword morvaneCommand vector.copy.xy vector.copy.xz vector.copy.yz vector.copyscale
syn keyword morvaneCommand vector.count vector.count.all vector.crop vector.direction vector.dump
syn keyword morvaneCommand vector.erase.max vector.erase.min vector.factor.distance vector.flip.x
syn keyword morvaneCommand vector.flip.y vector.flip.z vector.float vector.fuse vector.g2l
syn keyword morvaneCommand vector.get.angle vector.get.fullangle vector.get.length vector.get.x
syn keyword morvaneCommand vector.get.y vector.get.z vector.hardsmooth vector.histogram
syn keyword morvaneCommand vector.histogram.image vector.histogram.raw vector.ifplain
syn keyword morvaneCommand vector.ifvector vector.info vector.insert.xy vector.insert.xz
syn keyword morvaneCommand vector.insert.yz vector.int32 vector.int64 vector.integer vector.inverse
syn keyword morvaneCommand vector.l2g vector.line vector.load vector.load.framework vector.load.nii
syn keyword morvaneCommand vector.load.nii.gz vector.load.properties vector.load.txt vector.loadnii
syn keyword morvaneCommand vector.loadnii.gz vector.loadtxt vector.make vector.make.scalar
syn keyword morvaneCommand vector.make.vector vector.mask vector.matrix vector.matrix.v1
syn keyword morvaneCommand vector.matrix.v2 vector.matrix.v3 vector.max vector.mean vector.min
syn keyword morvaneCommand vector.move vector.mul vector.name vector.nat vector.new vector.norm
syn keyword morvaneCommand vector.norm.max vector.norm.min vector.norm.relative vector.offset
syn keyword morvaneCommand vector.offset.center vector.origin vector.origin.add vector.origin.center
syn keyword morvaneCommand vector.real vector.remove.outliers vector.resize vector.rgb vector.save
syn keyword morvaneCommand vector.save.properties vector.scale vector.scale.mul vector.scale.norm
syn keyword morvaneCommand vector.setlength vector.setlength.relative vector.size vector.smooth
syn keyword morvaneCommand vector.softsmooth vector.stream vector.stream.angles vector.stream.mask
syn keyword morvaneCommand vector.stream.mask.random vector.stream.muscle vector.stream.muscle.mask
syn keyword morvaneCommand vector.stream.muscle.mask.random vector.stream.muscle.random
syn keyword morvaneCommand vector.stream.nodes vector.stream.random vector.stream.seeds
syn keyword morvaneCommand vector.stream.slice vector.stream.slice.mask vector.stream.slicex
syn keyword morvaneCommand vector.stream.slicex.mask vector.stream.slicey vector.stream.slicey.mask
syn keyword morvaneCommand vector.stream.slicez vector.stream.slicez.mask vector.stream.snakes
syn keyword morvaneCommand vector.stream.steps vector.stream.stop.angle vector.stream.stop.contrast
syn keyword morvaneCommand vector.stream.stop.length vector.stream.uniform
syn keyword morvaneCommand vector.stream.uniform.random vector.sub vector.substack vector.swap
syn keyword morvaneCommand vector.unflip vector.unrotate vector.use vector.xy vector.xz vector.yz
syn keyword morvaneCommand wait weekday write write.tab writeln xml.delete xml.gettag xml.gettag.id
syn keyword morvaneCommand xml.insert.begin xml.insert.end xml.replace xml.show year
syn match morvaneCommand /\%(^\|\s\)\@1<=\%(\Vimage.rotate.-180\m\|\Vimage.rotate.-270\m\|\Vimage.rotate.-360\m\|\Vimage.rotate.-90\m\)\%(\s\|$\)\@=/
syn keyword morvaneVariable image.input scalar.input vector.input tensor.input mesh.input mesh.split
syn keyword morvaneVariable mesh.smooth mesh.rotate mesh.translate mesh.scale image.type scalar.type
syn keyword morvaneVariable vector.type tensor.type mesh.type random.seed true false condition
syn keyword morvaneVariable result parameter for.length for.rest for.count for.relative for.relativ
syn keyword morvaneVariable thread.max parallel.length parallel.count parallel.relativ

syn match morvaneNumber /\%(^\|[^[:alnum:]_.@-]\)\@1<=-\=\d\+\%(\.\d\+\)\=\%(e[+-]\=\d\+\)\=\w\@!/
syn match morvaneNumber /\%(^\| \)\@1<=\%(\$\x\+\|%[01]\+\|#\d\+\)\%( \|$\)\@=/
syn match morvaneTarget /^\s*\zs\S\+\%( \+\%(\V:=\m\|\V~=\m\|\V|=\m\|\V+=\m\|\V-=\m\|\V*=\m\|\V\/=\m\|\Vo=\m\|\Vx=\m\|\V#=\m\|\V%=\m\|\V$=\m\|\Vd=\m\|\Vs=\m\|\Vr=\m\|\V!=\m\)\%( \|$\)\)\@=/
syn match morvaneOperator / \@1<=\%(\V:=\m\|\V~=\m\|\V|=\m\|\V+=\m\|\V-=\m\|\V*=\m\|\V\/=\m\|\Vo=\m\|\Vx=\m\|\V#=\m\|\V%=\m\|\V$=\m\|\Vd=\m\|\Vs=\m\|\Vr=\m\|\V!=\m\)\%( \|$\)\@=/
syn match morvaneBracket /[()<>\[\]{}]/
syn match morvaneAt /@\w\+\%(\.\w\+\)*/
syn match morvaneDirective /^\s*\zs@@\S/
syn match morvaneKeyword /^\s*\zs\%(\Vappend\m\|\Vappend.space\m\|\Vbegin\m\|\Vbreak\m\|\Vcase\m\|\Velse\m\|\Vend\m\|\Vexecute\m\|\Vfor\m\|\Vfor.part\m\|\Vfor.random\m\|\Vfunction\m\|\Vglobal\m\|\Vhalt\m\|\Vif\m\|\Vif.else\m\|\Vif.false\m\|\Vif.then\m\|\Vif.true\m\|\Vifabsequal\m\|\Vifall\m\|\Vifallcontain\m\|\Vifallpart\m\|\Vifand\m\|\Vifbigger\m\|\Vifbigger.filesize\m\|\Vifcontain\m\|\Vifempty\m\|\Vifequal\m\|\Vifequal.filesize\m\|\Vifexists\m\|\Viffilesize\m\|\Vifnand\m\|\Vifnor\m\|\Vifnot\m\|\Vifnotall\m\|\Vifnotallcontain\m\|\Vifnotallpart\m\|\Vifnotcontain\m\|\Vifnotempty\m\|\Vifnotexists\m\|\Vifnotone\m\|\Vifnotonecontain\m\|\Vifnotonepart\m\|\Vifnotpart\m\|\Vifnotsame\m\|\Vifnotzero\m\|\Vifone\m\|\Vifonecontain\m\|\Vifonepart\m\|\Vifor\m\|\Vifpart\m\|\Vifsame\m\|\Vifsmaller\m\|\Vifsmaller.filesize\m\|\Vifzero\m\|\Vifzero.filesize\m\|\Vignore\m\|\Vimport\m\|\Vinclude\m\|\Vlocal\m\|\Vmaximize\m\|\Vminimize\m\|\Vmodule\m\|\Vof\m\|\Vofnot\m\|\Voutput.append\m\|\Voutput.store\m\|\Vparallel\m\|\Vprocedure\m\|\Vprocess\m\|\Vrepeat\m\|\Vstore\m\|\Vstore.space\m\|\Vsub\m\|\Vthen\m\|\Vuntil\m\|\Vvar\m\|\Vwhile\m\|\Vwith\m\)\%( \|$\)\@=/
syn match morvaneKeyword /\c\%(^\s*\%(\%(if\.\)\=\%(then\|else\)\|if\.true\|if\.false\) \+\)\@<=\%(\Vappend\m\|\Vappend.space\m\|\Vbegin\m\|\Vbreak\m\|\Vcase\m\|\Velse\m\|\Vend\m\|\Vexecute\m\|\Vfor\m\|\Vfor.part\m\|\Vfor.random\m\|\Vfunction\m\|\Vglobal\m\|\Vhalt\m\|\Vif\m\|\Vif.else\m\|\Vif.false\m\|\Vif.then\m\|\Vif.true\m\|\Vifabsequal\m\|\Vifall\m\|\Vifallcontain\m\|\Vifallpart\m\|\Vifand\m\|\Vifbigger\m\|\Vifbigger.filesize\m\|\Vifcontain\m\|\Vifempty\m\|\Vifequal\m\|\Vifequal.filesize\m\|\Vifexists\m\|\Viffilesize\m\|\Vifnand\m\|\Vifnor\m\|\Vifnot\m\|\Vifnotall\m\|\Vifnotallcontain\m\|\Vifnotallpart\m\|\Vifnotcontain\m\|\Vifnotempty\m\|\Vifnotexists\m\|\Vifnotone\m\|\Vifnotonecontain\m\|\Vifnotonepart\m\|\Vifnotpart\m\|\Vifnotsame\m\|\Vifnotzero\m\|\Vifone\m\|\Vifonecontain\m\|\Vifonepart\m\|\Vifor\m\|\Vifpart\m\|\Vifsame\m\|\Vifsmaller\m\|\Vifsmaller.filesize\m\|\Vifzero\m\|\Vifzero.filesize\m\|\Vignore\m\|\Vimport\m\|\Vinclude\m\|\Vlocal\m\|\Vmaximize\m\|\Vminimize\m\|\Vmodule\m\|\Vof\m\|\Vofnot\m\|\Voutput.append\m\|\Voutput.store\m\|\Vparallel\m\|\Vprocedure\m\|\Vprocess\m\|\Vrepeat\m\|\Vstore\m\|\Vstore.space\m\|\Vsub\m\|\Vthen\m\|\Vuntil\m\|\Vvar\m\|\Vwhile\m\|\Vwith\m\)\%( \|$\)\@=/
syn match morvaneKeyword /\c\%(^\s*of \+\S\+ \+\)\@<=\%(\Vappend\m\|\Vappend.space\m\|\Vbegin\m\|\Vbreak\m\|\Vcase\m\|\Velse\m\|\Vend\m\|\Vexecute\m\|\Vfor\m\|\Vfor.part\m\|\Vfor.random\m\|\Vfunction\m\|\Vglobal\m\|\Vhalt\m\|\Vif\m\|\Vif.else\m\|\Vif.false\m\|\Vif.then\m\|\Vif.true\m\|\Vifabsequal\m\|\Vifall\m\|\Vifallcontain\m\|\Vifallpart\m\|\Vifand\m\|\Vifbigger\m\|\Vifbigger.filesize\m\|\Vifcontain\m\|\Vifempty\m\|\Vifequal\m\|\Vifequal.filesize\m\|\Vifexists\m\|\Viffilesize\m\|\Vifnand\m\|\Vifnor\m\|\Vifnot\m\|\Vifnotall\m\|\Vifnotallcontain\m\|\Vifnotallpart\m\|\Vifnotcontain\m\|\Vifnotempty\m\|\Vifnotexists\m\|\Vifnotone\m\|\Vifnotonecontain\m\|\Vifnotonepart\m\|\Vifnotpart\m\|\Vifnotsame\m\|\Vifnotzero\m\|\Vifone\m\|\Vifonecontain\m\|\Vifonepart\m\|\Vifor\m\|\Vifpart\m\|\Vifsame\m\|\Vifsmaller\m\|\Vifsmaller.filesize\m\|\Vifzero\m\|\Vifzero.filesize\m\|\Vignore\m\|\Vimport\m\|\Vinclude\m\|\Vlocal\m\|\Vmaximize\m\|\Vminimize\m\|\Vmodule\m\|\Vof\m\|\Vofnot\m\|\Voutput.append\m\|\Voutput.store\m\|\Vparallel\m\|\Vprocedure\m\|\Vprocess\m\|\Vrepeat\m\|\Vstore\m\|\Vstore.space\m\|\Vsub\m\|\Vthen\m\|\Vuntil\m\|\Vvar\m\|\Vwhile\m\|\Vwith\m\)\%( \|$\)\@=/
syn match morvaneDeclaration /^\s*\zs\%(\Vvar\m\|\Vlocal\m\|\Vglobal\m\)\S*/
" A text ends with its line and at a comment, which no quote protects.
syn region morvaneString start=/"/ end=/"/ end=/ \/\//me=s-1 end=/$/ oneline contains=morvaneAt
syn region morvaneString start=/'/ end=/'/ end=/ \/\//me=s-1 end=/$/ oneline contains=morvaneAt
syn match morvaneComment / \/\/.*$/
syn match morvaneComment /^\s*\zs\%(\/\/\|#\|%\).*$/
syn match morvaneComment /\%^!.*$/

hi def link morvaneCommand Function
hi def link morvaneVariable Identifier
hi def link morvaneNumber Number
hi def link morvaneTarget Identifier
hi def link morvaneOperator Operator
hi def link morvaneBracket Delimiter
hi def link morvaneAt Special
hi def link morvaneDirective PreProc
hi def link morvaneKeyword Statement
hi def link morvaneDeclaration Type
hi def link morvaneString String
hi def link morvaneComment Comment

let b:current_syntax = "morvane"
